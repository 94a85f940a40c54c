#include "servers/serverstore.h"

#include <array>
#include <optional>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"

namespace tessaro {
namespace {

constexpr std::string_view favoritesSection = "UBrowser.UBrowserFavoritesFact";

// The first three fields of a line, as far as it has them; what follows is ignored.
using Fields = std::array<std::optional<std::string_view>, 3>;

// An empty line has no field at all, not an empty one.
Fields fieldsOf(std::string_view line) {
    Fields fields;
    if (line.empty()) return fields;
    for (auto& field : fields) {
        const std::size_t end = line.find('\\');
        field = line.substr(0, end);
        if (end == std::string_view::npos) break;
        line.remove_prefix(end + 1);
    }
    return fields;
}

std::string required(const std::optional<std::string_view>& field) {
    if (!field) throw RunTimeError(errors::SubscriptOutOfRange);
    return std::string(*field);
}

std::string serverFile(const Program& program) {
    return program.file.folder + "\\servers.ip";
}

void makeMissingFile(Program& program, const std::string& file) {
    if (!program.files.firstMatch(file, attributes::Normal).empty()) return;
    const int number = program.table.freeNumber();
    program.table.openOutput(number, file);
    program.table.close(number);
}

ListItem makeRow(std::string name, std::string address, std::string port) {
    ListItem row{std::move(name), {}};
    row.subItems.reserve(2);
    row.subItems.push_back(std::move(address));
    row.subItems.push_back(std::move(port));
    return row;
}

// What a line lacks stays as the line before had it: an empty line shows a server twice.
ListItem rowOf(std::string_view line, const ListItem& before) {
    const Fields fields = fieldsOf(line);
    const auto text = [](const std::optional<std::string_view>& field, const std::string& other) {
        return field ? std::string(*field) : other;
    };
    return makeRow(text(fields[0], before.text), text(fields[1], before.subItems[0]),
                   text(fields[2], before.subItems[1]));
}

std::string favoriteKey(int number) {
    return "Favorites[" + std::to_string(number) + "]";
}

void importFavorite(const std::string& favorite, ServerNames& names, ListItems& list) {
    const Fields fields = fieldsOf(favorite);
    const std::string name = required(fields[0]);
    if (names.ServerInList(name) == Yes) return;
    const std::size_t row = list.add(name);
    names.add(list.item(row).text);
    // Both go in at the first place, so the address pushes the port to the second.
    list.addSubItem(row, 1, required(fields[2]));
    list.addSubItem(row, 1, required(fields[1]));
}

}  // namespace

ListItems makeServerList() {
    return ListItems({{"name", "Server Name"}, {"ip", "IP"}, {"port", "Port"}});
}

ServerRecord serverAt(const ListItems& list, std::size_t row) {
    return {list.text(row, 0), list.text(row, 1), list.text(row, 2)};
}

void addServer(ListItems& list, const ServerRecord& server) {
    list.addRow(makeRow(server.ServerName, server.IP, server.Port));
}

void LoadServerList(Program& program, ListItems& list) {
    const std::string file = serverFile(program);
    makeMissingFile(program, file);
    const int number = program.table.freeNumber();
    program.table.openInput(number, file);
    const ListItem none = makeRow({}, {}, {});
    const ListItem* before = &none;
    while (!program.table.endOfFile(number)) {
        const std::size_t row = list.addRow(rowOf(program.table.lineInput(number), *before));
        before = &list.item(row);
    }
    program.table.close(number);
}

void SaveServerList(Program& program, const ListItems& list) {
    const Int16 count = static_cast<long long>(list.count());
    const int number = program.table.freeNumber();
    program.table.openOutput(number, serverFile(program));
    std::string line;
    for (int i = 1; i <= count; ++i) {
        const auto row = static_cast<std::size_t>(i);
        line.assign(list.text(row, 0)).append("\\").append(list.text(row, 1)).append("\\");
        program.table.printLine(number, line.append(list.text(row, 2)));
    }
    program.table.close(number);
}

ServerNames::ServerNames(const ListItems& list) {
    for (std::size_t row = 1; row <= list.count(); ++row) add(list.item(row).text);
}

void ImportFavorites(Program& program, ListItems& list) {
    clsINI& INI = program.ini;
    INI.inifile(program.gamePaths.UTSysPath + "\\unrealtournament.ini");
    const Int16 count = toInt16(INI.getKeyValue("FavoriteCount", "0", favoritesSection));
    ServerNames names(list);
    for (int i = 0; i < count; ++i)
        importFavorite(INI.getKeyValue(favoriteKey(i), "0", favoritesSection), names, list);
}

}  // namespace tessaro
