#include "shell/credits.h"

#include <initializer_list>
#include <string_view>

namespace tessaro {
namespace {

constexpr int step = 7;
constexpr int stepOnWindows98 = 30;

struct TeamMember {
    std::string_view role;
    std::string_view name;
};

constexpr TeamMember team[] = {
    {"Lead Programmer", "Quorl"},    {"Asst. Programmer", "Nembit"},
    {"Beta Tester", "Grimlatch"},    {"Project Design", "Ovanna"},
    {"Graphics", "Pyxmoth"},         {"Module Designer", "Tarnok"},
    {"Hardware Tech", "Solderfink"}, {"Project Coordinator", "Bramok"},
};

constexpr std::string_view players[] = {
    "Mossfang",   "Tin Gargle", "Vexlin",      "Ottomork",  "Brindlehex",
    "Sprocketta", "Old Yarrow", "Quillbane",   "Drummelin", "Zephyrat",
    "Hobnail",    "Klaxonne",   "Murkwhistle", "Fennick",   "Ludovrix",
};

constexpr std::string_view clans[] = {"[Zarqel]", "-Ombrex-", "{Vuldan}", "|Krynth|",
                                      "=Oskwar=", "(Plevik)", "<Tundrix>"};

constexpr std::string_view notices[] = {
    "Copyright (c) Ovrin and members",
    "All Rights Reserved.",
    "",
    "UnrealTournament(c) is a",
    "registered trademark of",
    "EpicGames all rights reserved.",
    "",
    "This program is provided as is",
    "with no guarantees expressed",
    "or implied. Ovrin and members",
    "thereof may in no way be liable",
    "for any data errors that may",
    "occour in direct or indirect",
    "relation to use of this program",
    "",
    "That is all...",
};

void addLine(std::string& text, std::initializer_list<std::string_view> pieces) {
    for (const std::string_view piece : pieces) text += piece;
    text += "\n";
}

}  // namespace

std::string credits() {
    std::string text;
    addLine(text, {"Ovrin Design Team:"});
    for (const TeamMember& member : team) addLine(text, {member.role, " - ", member.name});
    addLine(text, {});
    addLine(text, {"Greets To:"});
    for (const std::string_view player : players) addLine(text, {player});
    for (const std::string_view clan : clans) addLine(text, {"Team ", clan});
    addLine(text, {"All Other Clans"});
    addLine(text, {});
    for (const std::string_view line : notices) addLine(text, {line});
    return text;
}

void CreditsRoll::tick(const OSVersionInfo& system) {
    top_ -= isWindows98(system) ? stepOnWindows98 : step;
    if (-height > top_) top_ = nextTop;
}

}  // namespace tessaro
