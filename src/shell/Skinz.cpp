#include "shell/Skinz.h"

#include <QLabel>

#include "forms/resources.h"
#include "ui_Skinz.h"

namespace tessaro::forms {

Skinz::Skinz(Forms& forms) : FormWindow<QDialog>(forms) {
    loadResources();
    Ui::Skinz().setupUi(this);
}

QPixmap Skinz::picture(const char* name) const {
    const auto* label = findChild<QLabel*>(QLatin1String(name));
    return label != nullptr ? label->pixmap(Qt::ReturnByValue) : QPixmap();
}

}  // namespace tessaro::forms
