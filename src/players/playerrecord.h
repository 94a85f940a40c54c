#pragma once
// A row of the player archive, in the list and in its file.

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/outside/listitems.h"

namespace tessaro {

/// One archived player, as the list shows it.
struct PlayerRecord {
    std::string name;
    std::string UTClass;
    std::string UTTeam;  ///< its name, such as "Red"; in the file its code
    std::string UTSkin;
    std::string UTFace;
    std::string UTVoice;
    std::string BackupFile;  ///< the copy of `user.ini`, without a folder
    bool operator==(const PlayerRecord&) const = default;
};

/// The name that the list shows for a team's code in the file; "None" for a code that is none.
std::string_view TeamName(std::string_view code);
/// The code in the file for a team's name; "255", which is no team, for a name that is none.
std::string_view teamCode(std::string_view name);

/// The line of `playerlist.lst`, in which nothing is quoted: a comma in a name shifts the fields
/// behind it when the line is read.
///
///     Name,BotPack.TMale2,255,SoldierSkins.blkt,SoldierSkins.Othello,BotPack.VoiceMaleTwo,userini0.bak
///
/// Takes the code of the team.
std::string playerLine(const PlayerRecord& record);
/// Takes the fields that a line has over into a record; those that it lacks keep their value.
void readPlayerLine(std::string_view line, PlayerRecord& record);

/// An empty list of players with its columns.
ListItems makeUserTable();
/// Adds a row at the end.
void addPlayer(ListItems& UserTable, PlayerRecord record);
PlayerRecord playerAt(const ListItems& UserTable, std::size_t index);
/// The row that the list counts as its selected item. Raises 91 for an empty list.
std::size_t selectedPlayer(const ListItems& UserTable);

}  // namespace tessaro
