#include "tools/samplegame/plainfiles.h"

#include <array>

namespace tessaro::sample {

namespace {

constexpr std::string_view webPage =
    "<html>\n<head><title><%Title%></title></head>\n<body>\n<p>A page of the sample.</p>\n"
    "</body>\n</html>\n";

constexpr auto files = std::to_array<PlainFile>({
    {"Help/ReadMe.htm",
     "<html>\n<head><title>Read me</title></head>\n<body>\n"
     "<h1>A sample installation</h1>\n"
     "<p>Everything in this folder was made up: names as in the game, contents without meaning."
     "</p>\n</body>\n</html>\n"},
    {"Logs/delete_me.txt", "This file only keeps the folder in being.\n"},
    {"Manuals/Manual.txt", "There is no manual in the sample.\n"},
    {"NetGamesUSA.com/ReadMe.txt", "Statistics would be kept in this folder.\n"},
    {"System/Manifest.ini",
     "[Setup]\nProduct=Sample\nVersion=436\nArchive=Manifest.ini\nGroup=GameGroup\n\n"
     "[GameGroup]\nFile=System\\Core.u\nFile=Help\\Logo.bmp\n"},
    {"System/Manifest.int", "[Setup]\nLocalProduct=Sample game\nReadMe=Help\\ReadMe.htm\n"},
    {"System/UnrealTournament.log",
     "Log: Log file open, 03/14/01 20:15:09\n"
     "Init: Name subsystem initialized\n"
     "Init: Object subsystem initialized\n"
     "Log: Bound to Engine.dll\n"
     "Log: Browse: Index.unr?Name=Player?Class=Botpack.TMale2?team=255\n"
     "ScriptLog: The bell has rung\n"
     "Exit: Exiting.\n"
     "Uninitialized: Log file closed, 03/14/01 21:40:52\n"},
    {"System/ucc.log",
     "Log: Log file open, 03/14/01 22:01:33\n"
     "Log: Executing Class IpDrv.CompressCommandlet\n"
     "Uninitialized: Log file closed, 03/14/01 22:01:40\n"},
    {"Web/current.uhtm", webPage},
    {"Web/current_menu.uhtm", webPage},
    {"Web/current_players.uhtm", webPage},
    {"Web/defaults.uhtm", webPage},
    {"Web/defaults_maps.uhtm", webPage},
    {"Web/menu.uhtm", webPage},
    {"Web/message.uhtm", webPage},
    {"Web/root.uhtm", webPage},
    {"Web/plaintext/message.uhtm", "<%Message%>\n"},
});

}  // namespace

std::span<const PlainFile> plainFiles() {
    return files;
}

}  // namespace tessaro::sample
