#include "servers/listeditmenu.h"

#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "servers/iplist.h"

namespace tessaro {

listeditmenu::listeditmenu(Forms& forms)
    : FormWindow<QDialog>(forms), mypopup_(new QMenu(QStringLiteral("ippopup"), this)) {
    mypopup_->setObjectName(QStringLiteral("mypopup"));
    for (const PopupItem& item : popupItems) {
        QAction* action = mypopup_->addAction(toQt(item.caption));
        action->setObjectName(toQt(item.name));
        action->setSeparator(item.command == nullptr);
        on(action, &QAction::triggered, forms, [&forms, command = item.command] {
            if (auto* list = forms.loaded<iplist>()) (list->manager().*command)();
        });
    }
}

}  // namespace tessaro
