#pragma once
// The main window's life: what happens at its Load, at each Resize and at its Unload.

#include <string>

#include "core/program.h"

namespace tessaro {

/// Window states as the settings file stores them.
namespace windowstate {
inline constexpr int Normal = 0;
inline constexpr int Minimised = 1;
inline constexpr int Maximised = 2;
}  // namespace windowstate

/// What start-up and exit ask of the main window and of the forms that open with it.
class MainWindow {
  public:
    virtual ~MainWindow() = default;
    virtual void center() = 0;
    /// Runs the Resize handler, also before the window is visible.
    virtual void setState(int state) = 0;
    virtual int state() = 0;
    /// Returns when the splash has gone.
    virtual void showSplash() = 0;
    /// The game folder that the path check tests. May read and write the game's files and ask the
    /// user on the way.
    virtual std::string loadFolderToCheck() = 0;
    /// Lets the user mend bad paths; returns when that is done.
    virtual void showPrefs() = 0;
    virtual void unloadAllForms() = 0;
};

/// Sizes in twips.
struct MainWindowSize {
    double width = 0;
    double height = 0;
};
inline constexpr MainWindowSize smallestMainWindow{8000, 6000};
/// The background picture's size in a main window of that outer size.
MainWindowSize backgroundSize(const MainWindowSize& form);

/// From launch to the standing main window. Raises what the settings raise: a text that is no
/// number where one is needed stops the program here, at every start.
void loadMainWindow(Program& program, MainWindow& window);
/// Follows a change of size or state, with the sounds of minimising and maximising.
void resizeMainWindow(Program& program, int state);
/// Farewell, settings, end of all forms. Closing cannot be refused.
void unloadMainWindow(Program& program, MainWindow& window);

/// The player's name for the splash, read from the game's `user.ini`, which gains
/// `Name=Player` if it has no name.
std::string playerName(clsINI& INI, const GamePaths& paths);
/// What a click on the splash does before it closes.
void acknowledgeSplash(Program& program);

}  // namespace tessaro
