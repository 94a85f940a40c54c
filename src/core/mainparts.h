#pragma once

#include <QMainWindow>
#include <string>

namespace tessaro {

/// What the main window is handed by whoever knows the tools, since it knows none of them itself.
class MainParts {
  public:
    virtual ~MainParts() = default;
    /// Fills the window's menu bar, and makes the pop-up menu.
    virtual void buildMenus(QMainWindow& window) = 0;
    /// The game folder that the path check tests, as the preferences dialog shows it. Loads the
    /// dialog, which reads the game's files, may write defaults into them and may ask the user.
    virtual std::string loadFolderToCheck() = 0;
    /// Returns when the user has left the preferences.
    virtual void showPrefs() = 0;
    /// Gives the main window its tray object, see `MainFrm::SetRunType`.
    virtual void setRunType(int mode) = 0;
};

}  // namespace tessaro
