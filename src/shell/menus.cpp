#include "shell/menus.h"

#include <QAction>
#include <QCursor>
#include <QKeySequence>
#include <QMenuBar>

#include "core/MainFrm.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "shell/menutable.h"

namespace tessaro {
namespace {

bool isMenu(const MenuItem& item) {
    for (const MenuItem& other : menuItems)
        if (other.parent == item.name) return true;
    return false;
}

QMenu* makeMenu(QMainWindow& window, std::string_view name, std::string_view caption) {
    auto* menu = new QMenu(toQt(caption), &window);
    menu->setObjectName(toQt(name));
    return menu;
}

class Builder {
  public:
    Builder(Forms& forms, QMainWindow& window, const MenuCommands& commands)
        : forms_(forms), window_(window), commands_(commands) {
        menus_[popupMenu] = makeMenu(window, popupMenu, popupCaption);
    }

    void add(const MenuItem& item) {
        if (item.parent.empty()) {
            window_.menuBar()->addMenu(submenu(item));
        } else if (isMenu(item)) {
            menus_.at(item.parent)->addMenu(submenu(item));
        } else {
            menus_.at(item.parent)->addAction(action(item));
        }
    }

  private:
    QMenu* submenu(const MenuItem& item) {
        return menus_[item.name] = makeMenu(window_, item.name, item.caption);
    }

    QAction* action(const MenuItem& item) {
        auto* action = new QAction(toQt(item.caption), &window_);
        action->setObjectName(toQt(item.name));
        action->setSeparator(item.caption.empty());
        action->setShortcut(QKeySequence(toQt(item.shortcut)));
        const auto command = commands_.find(item.name);
        action->setEnabled(command != commands_.end());
        if (command != commands_.end()) on(action, &QAction::triggered, forms_, command->second);
        return action;
    }

    Forms& forms_;
    QMainWindow& window_;
    const MenuCommands& commands_;
    std::map<std::string_view, QMenu*> menus_;
};

}  // namespace

void buildMenus(Forms& forms, QMainWindow& window, const MenuCommands& commands) {
    Builder builder(forms, window, commands);
    for (const MenuItem& item : menuItems) builder.add(item);
}

void showPopupMenu(Forms& forms) {
    auto* menu = forms.get<MainFrm>().findChild<QMenu*>(toQt(popupMenu));
    menu->exec(QCursor::pos());
    forms.throwIfEnded();
}

}  // namespace tessaro
