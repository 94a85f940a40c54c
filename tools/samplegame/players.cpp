#include "tools/samplegame/players.h"

#include <string>
#include <string_view>

#include "tools/samplegame/inifiles.h"
#include "tools/samplegame/tree.h"

namespace tessaro::sample {

namespace {

struct Player {
    std::string_view name;
    std::string_view className;
    std::string_view team;
    std::string_view skin;
    std::string_view face;
    std::string_view voice;
    std::string_view copy;
};

constexpr Player players[] = {
    {"Marrow", "BotPack.TFemale1", "1", "FCommandoSkins.goth", "FCommandoSkins.Visse",
     "BotPack.VoiceFemaleOne", "userini0.bak"},
    {"Old Ferryman", "BotPack.TMale1", "3", "CommandoSkins.cmdo", "CommandoSkins.Blake",
     "BotPack.VoiceMaleOne", "userini1.bak"},
};

void append(std::string& text, std::string_view before, std::string_view value) {
    text.append(before).append(value);
}

std::string lineOf(const Player& player) {
    std::string line(player.name);
    for (const std::string_view field :
         {player.className, player.team, player.skin, player.face, player.voice, player.copy})
        append(line, ",", field);
    return line + "\r\n";
}

// A profile as the sample game's own, but for the player.
std::string profileOf(const Player& player) {
    std::string text = "[DefaultPlayer]";
    append(text, "\r\nName=", player.name);
    append(text, "\r\nClass=", player.className);
    append(text, "\r\nteam=", player.team);
    append(text, "\r\nskin=", player.skin);
    append(text, "\r\nFace=", player.face);
    append(text, "\r\nVoice=", player.voice);
    const std::string own = userIni();
    return text + own.substr(own.find("\r\n\r\n"));
}

}  // namespace

void writePlayers(const std::filesystem::path& programFolder) {
    if (exists(programFolder / "playerlist.lst") || exists(programFolder / "users")) return;
    Tree archive(programFolder);
    archive.makeFolder("users");
    std::string list;
    for (const Player& player : players) {
        archive.write("users/" + std::string(player.copy), profileOf(player));
        list += lineOf(player);
    }
    archive.write("playerlist.lst", list);
}

}  // namespace tessaro::sample
