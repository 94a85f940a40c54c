#pragma once

#include <memory>

#include "kit/frame/skinnedform.h"
#include "players/nameeditor.h"

namespace Ui {
class usernameContent;
}

namespace tessaro {

/// The name editor: renames the player that is selected in the User Manager.
class username : public SkinnedForm {
    Q_OBJECT

  public:
    username(Forms& forms, Program& program, UserMan& userMan);
    ~username() override;

    void Load() override;

  private:
    void setupCommands();
    void applyStyle(int style);
    void followName(const QString& name);
    void confirm();

    std::unique_ptr<Ui::usernameContent> ui_;
    Program& program_;
    NameEditor editor_;
};

}  // namespace tessaro
