#include "players/nameeditor.h"

namespace tessaro {

std::string NameEditor::open() {
    const PlayerRecord player = playerAt(UserTable_, selectedPlayer(UserTable_));
    program_.ini.inifile(userMan_.copyPath(player.BackupFile));
    return program_.ini.getKeyValue("Name", "Player", "DefaultPlayer");
}

void NameEditor::commit(const std::string& name) {
    if (name.empty()) return;
    const std::size_t row = selectedPlayer(UserTable_);
    PlayerRecord player = playerAt(UserTable_, row);
    UserTable_.remove(row);
    program_.ini.inifile(userMan_.copyPath(player.BackupFile));
    program_.ini.setKeyValue("Name", name, "DefaultPlayer");
    program_.ini.inifile(userMan_.userIni());
    player.name = name;
    // Saving knows the names of the teams, not their codes, and writes this one as none. The copy
    // keeps its team.
    player.UTTeam = teamCode(player.UTTeam);
    addPlayer(UserTable_, player);
    userMan_.SavePlayerList(UserTable_);
    UserTable_.clear();
    userMan_.LoadPlayerList(UserTable_, userMan_.listFile());
}

}  // namespace tessaro
