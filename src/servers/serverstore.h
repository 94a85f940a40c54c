#pragma once
// The program's own list of game servers, independent of the game's. While its form is open the
// rows are the list; between times it lies in `servers.ip` in the program's folder, one server to
// a line, without any quoting:
//
//     Clan Server\192.168.0.10\7777

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_set>

#include "core/program.h"
#include "platform/outside/listitems.h"

namespace tessaro {

/// A server. Nothing looks at what the characters of its fields are.
struct ServerRecord {
    std::string ServerName;
    std::string IP;
    std::string Port;
    bool operator==(const ServerRecord&) const = default;
};

/// An empty list of servers. A row's text is the name, its sub-items are address and port.
ListItems makeServerList();
/// The server in a row, from 1. Raises 35600 if there is no such row.
ServerRecord serverAt(const ListItems& list, std::size_t row);
/// Adds a row at the end.
void addServer(ListItems& list, const ServerRecord& server);

/// Adds the rows of the list's file, which is made if there is none. A line short of fields is no
/// error. Raises what opening the file raises.
void LoadServerList(Program& program, ListItems& list);
/// Replaces the list's file by the rows, in their order. Raises 6 for more than 32767 rows, and
/// what writing raises; the file is then as it was.
void SaveServerList(Program& program, const ListItems& list);

/// The names in a list, gathered once since an import asks for each of thousands. They are looked
/// at where they are, so none may change or go meanwhile.
class ServerNames {
  public:
    explicit ServerNames(const ListItems& list);

    void add(std::string_view name) { names_.insert(name); }
    /// Whether a row bears exactly that name, case included.
    YesNo ServerInList(std::string_view name) const { return yesNo(names_.contains(name)); }

  private:
    std::unordered_set<std::string_view> names_;
};

/// Adds the favourites of the game's own server browser whose names are not in the list yet. Writes
/// the default of each key that has no value into the game's file, as every reading does.
///
/// Raises 13 or 6 for a `FavoriteCount` that is no number or none of 16 bits, and 9 for a favourite
/// of fewer than three fields, of which the name then stands in the list; what came before it
/// stays.
void ImportFavorites(Program& program, ListItems& list);

}  // namespace tessaro
