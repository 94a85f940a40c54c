#include "kit/look/reader.h"

#include <QAbstractItemView>
#include <QGroupBox>

namespace tessaro {

void nameForReaders(QWidget& form) {
    for (auto* frame : form.findChildren<QGroupBox*>()) frame->setAccessibleName(frame->title());
    for (auto* list : form.findChildren<QAbstractItemView*>())
        list->setAccessibleDescription(list->toolTip());
}

}  // namespace tessaro
