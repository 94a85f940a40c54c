#pragma once

#include <QMainWindow>
#include <QMenu>
#include <functional>
#include <map>
#include <string_view>

namespace tessaro {

class Forms;

/// What each menu item does, by the item's name. An item without a command is disabled.
using MenuCommands = std::map<std::string_view, std::function<void()>>;

/// Fills the window's menu bar and makes the pop-up menu, a child of the window named "mnumypopup"
/// that is not shown. Every action bears its item's name.
void buildMenus(Forms& forms, QMainWindow& window, const MenuCommands& commands);

/// Shows the main window's pop-up menu at the mouse; returns when it has closed and what was chosen
/// there is done.
void showPopupMenu(Forms& forms);

}  // namespace tessaro
