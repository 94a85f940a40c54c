#pragma once

#include <memory>

#include "kit/frame/skinnedform.h"
#include "players/usermanager.h"

namespace Ui {
class UsersContent;
}

namespace tessaro {

/// The User Manager: the current player, and the archive of players.
class Users : public SkinnedForm, public UsersView {
    Q_OBJECT

  public:
    Users(Forms& forms, Program& program, UserMan& userMan);
    ~Users() override;

    void Load() override;
    /// Saves the list. A failure ends the program.
    void Unload() override;

    ListItems& UserTable() override { return rows_; }

  private:
    void setupList();
    void setupCommands();

    std::string currentName() override;
    void showCurrentName(const std::string& name) override;
    void enableSwap(bool enabled) override;
    void setBusyPointer(bool busy) override;
    void editName() override;
    void closeForm() override;
    void setMainState(int state) override;

    std::unique_ptr<Ui::UsersContent> ui_;
    Program& program_;
    ListItems rows_ = makeUserTable();
    UserManager rules_;
};

}  // namespace tessaro
