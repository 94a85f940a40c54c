#include "players/playerrecord.h"

#include <algorithm>
#include <utility>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

struct Team {
    std::string_view code;
    std::string_view name;
};

constexpr Team teams[] = {
    {"0", "Red"}, {"1", "Blue"}, {"2", "Green"}, {"3", "Gold"}, {"255", "None"},
};
constexpr const Team& noTeam = teams[std::size(teams) - 1];

const Team& teamWhere(std::string_view Team::*field, std::string_view text) {
    const auto* const found = std::ranges::find(teams, text, field);
    return found == std::end(teams) ? noTeam : *found;
}

// In the order of the file, and of the columns.
constexpr std::string PlayerRecord::*fields[] = {
    &PlayerRecord::name,   &PlayerRecord::UTClass, &PlayerRecord::UTTeam,     &PlayerRecord::UTSkin,
    &PlayerRecord::UTFace, &PlayerRecord::UTVoice, &PlayerRecord::BackupFile,
};
constexpr std::size_t subItemCount = std::size(fields) - 1;

}  // namespace

std::string_view TeamName(std::string_view code) {
    return teamWhere(&Team::code, code).name;
}

std::string_view teamCode(std::string_view name) {
    return teamWhere(&Team::name, name).code;
}

std::string playerLine(const PlayerRecord& record) {
    std::string line;
    for (const auto field : fields) line.append(record.*field).append(",");
    line.pop_back();
    return line;
}

void readPlayerLine(std::string_view line, PlayerRecord& record) {
    if (line.empty()) return;  // has no field at all
    for (const auto field : fields) {
        const std::size_t comma = line.find(',');
        record.*field = line.substr(0, comma);
        if (comma == std::string_view::npos) return;
        line.remove_prefix(comma + 1);
    }
}

ListItems makeUserTable() {
    return ListItems({{"name", "Name"},
                      {"class", "Class"},
                      {"team", "Team"},
                      {"skin", "Skin"},
                      {"face", "Face"},
                      {"voice", "Voice Pack"},
                      {"file", "Backup File"}});
}

void addPlayer(ListItems& UserTable, PlayerRecord record) {
    const std::size_t row = UserTable.add(std::move(record.name));
    // From the last one on, so that the row's sub-items find their room at once.
    for (std::size_t i = subItemCount; i > 0; --i)
        UserTable.setSubItem(row, i, std::move(record.*fields[i]));
}

PlayerRecord playerAt(const ListItems& UserTable, std::size_t index) {
    const ListItem& row = UserTable.item(index);
    PlayerRecord record;
    record.name = row.text;
    for (std::size_t i = 1; i <= subItemCount; ++i) record.*fields[i] = row.subItems.at(i - 1);
    return record;
}

std::size_t selectedPlayer(const ListItems& UserTable) {
    const std::size_t row = UserTable.selectedItem();
    if (row == 0) throw RunTimeError(errors::ObjectNotSet);
    return row;
}

}  // namespace tessaro
