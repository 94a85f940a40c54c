#pragma once

#include "core/mainparts.h"
#include "core/program.h"
#include "kit/forms/forms.h"
#include "players/UserMan.h"

namespace tessaro {

/// The one list of all tools: makes every form known, and gives the main window the menus that
/// open them. A new tool joins by its lines in `tools.cpp`, and nowhere else.
class Tools : public MainParts {
  public:
    Tools(Forms& forms, Program& program);

    void buildMenus(QMainWindow& window) override;
    std::string loadFolderToCheck() override;
    void showPrefs() override;

  private:
    Forms& forms_;
    UserMan userMan_;
};

}  // namespace tessaro
