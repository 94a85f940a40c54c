#pragma once
// What the User Manager's buttons do, apart from its window.

#include "core/clsINI.h"
#include "core/program.h"
#include "players/UserMan.h"

namespace tessaro {

/// What the User Manager is asked for besides its rows.
class UsersView : public ArchiveView {
  public:
    /// The pointer is an hourglass over the form.
    virtual void setBusyPointer(bool busy) = 0;
    /// Returns when the name editor has closed.
    virtual void editName() = 0;
    /// Unloads the form, which saves the list.
    virtual void closeForm() = 0;
    /// Sets the main window's state.
    virtual void setMainState(int state) = 0;
};

/// One for each load of the form. Nothing guards its steps unless it says so: what the files raise
/// is raised.
class UserManager {
  public:
    UserManager(Program& program, UserMan& userMan, UsersView& view);

    /// The form's Load: reads the current player, and makes the archive's folder and list.
    void open();
    /// The form's Unload.
    void save();
    /// `Command2`.
    void saveCurrent();
    /// `Command7` and a double click on a row. Raises 91 for an empty list.
    void setAsCurrent();
    /// `Command4`. Failures are ignored once the user has said yes.
    void deleteSelected();
    /// `Command5`.
    void changeName();
    /// `Command3`: closes the form and runs the game.
    void play();

  private:
    bool anyHighlighted();
    void swap();
    void removeSelected();

    Program& program_;
    UserMan& userMan_;
    UsersView& view_;
    clsINI INI;
};

}  // namespace tessaro
