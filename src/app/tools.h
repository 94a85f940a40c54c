#pragma once

#include "cache/cacheindex.h"
#include "core/mainparts.h"
#include "core/program.h"
#include "editor/editor.h"
#include "kit/forms/forms.h"
#include "platform/outside/desktop.h"
#include "players/UserMan.h"

namespace tessaro {

/// The one list of all tools: makes every form known, and gives the main window the menus that
/// open them. A new tool joins by its lines in `tools.cpp`, and nowhere else.
class Tools : public MainParts {
  public:
    Tools(Forms& forms, Program& program, Desktop& desktop);

    void buildMenus(QMainWindow& window) override;
    std::string loadFolderToCheck() override;
    void showPrefs() override;
    void setRunType(int mode) override;

  private:
    Forms& forms_;
    Program& program_;
    Desktop& desktop_;

    // Variables of forms that keep their values while the form is closed.
    CacheEntry cacheEntry_;
    EditorMemory editor_;
    UserMan userMan_;
};

}  // namespace tessaro
