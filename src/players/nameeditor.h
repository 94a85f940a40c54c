#pragma once
// What the name editor reads and writes, apart from its window.

#include <string>

#include "core/program.h"
#include "players/UserMan.h"

namespace tessaro {

/// Renames the selected player of the User Manager. One for each load of the editor.
class NameEditor {
  public:
    NameEditor(Program& program, UserMan& userMan, ListItems& UserTable)
        : program_(program), userMan_(userMan), UserTable_(UserTable) {}

    /// The name inside the selected player's copy, which need not be the row's. Raises 91 for an
    /// empty list, and what touching the copy raises.
    std::string open();
    /// Writes the name into the copy and replaces the row, which moves to the end and loses its
    /// team. The copy keeps its file name, and all of its text but the name. An empty name changes
    /// nothing. Raises what opening the list raises.
    void commit(const std::string& name);

  private:
    Program& program_;
    UserMan& userMan_;
    ListItems& UserTable_;
};

}  // namespace tessaro
