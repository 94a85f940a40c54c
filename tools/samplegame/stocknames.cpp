#include "tools/samplegame/names.h"

#include <array>

namespace tessaro::sample {

namespace {

using Name = std::string_view;

constexpr auto maps = std::to_array<Name>({
    "AS-Frigate",
    "AS-Guardia",
    "AS-HiSpeed",
    "AS-Mazon",
    "AS-OceanFloor",
    "AS-Overlord",
    "AS-Rook",
    "AS-Tutorial",
    "CTF-Command",
    "CTF-Coret",
    "CTF-Dreary",
    "CTF-EternalCave",
    "CTF-Face",
    "CTF-Face][",
    "CTF-Gauntlet",
    "CTF-LavaGiant",
    "CTF-Niven",
    "CTF-November",
    "CTF-Tutorial",
    "CityIntro",
    "DM-Barricade",
    "DM-Codex",
    "DM-Conveyor",
    "DM-Curse][",
    "DM-Cybrosis][",
    "DM-Deck16][",
    "DM-Fetid",
    "DM-Fractal",
    "DM-Gothic",
    "DM-Grinder",
    "DM-HealPod][",
    "DM-HyperBlast",
    "DM-KGalleon",
    "DM-Liandri",
    "DM-Morbias][",
    "DM-Morpheus",
    "DM-Oblivion",
    "DM-Peak",
    "DM-Phobos",
    "DM-Pressure",
    "DM-Pyramid",
    "DM-Stalwart",
    "DM-StalwartXL",
    "DM-Tempest",
    "DM-Turbine",
    "DM-Tutorial",
    "DM-Zeto",
    "DOM-Cinder",
    "DOM-Condemned",
    "DOM-Cryptic",
    "DOM-Gearbolt",
    "DOM-Ghardhen",
    "DOM-Lament",
    "DOM-Lament][",
    "DOM-Leadworks",
    "DOM-MetalDream",
    "DOM-Olden",
    "DOM-Sesmar",
    "DOM-Tutorial",
    "EOL_Assault",
    "EOL_CTF",
    "EOL_Challenge",
    "EOL_Deathmatch",
    "EOL_Domination",
    "EOL_Statues",
    "UTCredits",
    // a player's own, with a letter outside ASCII in its name on disk
    "DM-Orangerie-Clémence",
});

constexpr auto smallMaps = std::to_array<Name>({"Entry", "UT-Logo-Map"});

constexpr auto music = std::to_array<Name>({
    "Botmca9",  "Botpck10", "Cannon",  "Colossus", "Course",  "Credits",  "Ending",  "Enigma",
    "Foregone", "Godown",   "Lock",    "Mech8",    "Mission", "Nether",   "Organic", "Phantom",
    "Razor-ub", "Run",      "SaveMe",  "Savemeg",  "Seeker",  "Seeker2",  "Skyward", "Strider",
    "Suprfist", "UnWorld2", "Uttitle", "Wheels",   "firebr",  "utmenu23",
});

constexpr auto sounds = std::to_array<Name>({
    "Activates",   "Addon1",       "AmbAncient",   "AmbCity",      "AmbModern",    "AmbOutside",
    "Announcer",   "BossVoice",    "DDay",         "DMatch",       "DoorsAnc",     "DoorsMod",
    "Extro",       "Female1Voice", "Female2Voice", "FemaleSounds", "LadderSounds", "Male1Voice",
    "Male2Voice",  "MaleSounds",   "Pan1",         "TutVoiceAS",   "TutVoiceCTF",  "TutVoiceDM",
    "TutVoiceDOM", "VRikers",      "noxxsnd",      "openingwave",  "rain",
});

constexpr auto textures = std::to_array<Name>({
    "AlfaFX",        "Ancient",      "ArenaTex",      "Belt_fx",
    "BossSkins",     "CTF",          "Crypt",         "Crypt2",
    "DMeffects",     "DecayedS",     "Egypt",         "FCommandoSkins",
    "Faces",         "Female1Skins", "GenEarth",      "GenFX",
    "GenFluid",      "GenIn",        "GenTerra",      "GenWarp",
    "Indus1",        "Indus2",       "Indus3",        "Indus4",
    "Indus5",        "Indus6",       "Indus7",        "LadderFonts",
    "Lian-X",        "Liquids",      "Logo",          "Male1Skins",
    "Metalmys",      "NaliCast",     "Palettes",      "Render",
    "SGirlSkins",    "Skaarj",       "SkyBox",        "Slums",
    "Soldierskins",  "Starship",     "TCowMeshSkins", "TNaliMeshSkins",
    "TSkMSkins",     "UT",           "UTbase1",       "UTcrypt",
    "UTtech1",       "UTtech2",      "UTtech3",       "UWindowFonts",
    "XFX",           "Xtortion",     "castle1",       "city",
    "commandoskins", "credits",      "eol",           "of1",
});

constexpr auto largeScripts = std::to_array<Name>({
    "BotPack",
    "Engine",
    "UMenu",
    "UTMenu",
    "UWindow",
    "UnrealI",
    "UnrealShare",
    "epiccustommodels",
});

constexpr auto smallScripts = std::to_array<Name>({
    "Core",
    "Editor",
    "Fire",
    "IpDrv",
    "IpServer",
    "MultiMesh",
    "UBrowser",
    "UTBrowser",
    "UTServerAdmin",
    "UWeb",
    "relics",
    "udemo",
});

constexpr auto packages = std::to_array<StockFiles>({
    {"Maps", ".unr", maps, 30, 90},
    {"Maps", ".unr", smallMaps, 4, 8},
    {"Music", ".umx", music, 10, 60},
    {"Sounds", ".uax", sounds, 10, 90},
    {"Textures", ".utx", textures, 10, 90},
    {"System", ".u", largeScripts, 60, 250},
    {"System", ".u", smallScripts, 8, 50},
});

constexpr auto programs = std::to_array<Name>({
    "UnrealTournament.exe",
    "UCC.exe",
    "UnrealEd.exe",
    "Setup.exe",
    "Core.dll",
    "Engine.dll",
    "Render.dll",
    "OpenGLDrv.dll",
    "WinDrv.dll",
    "IpDrv.dll",
    "Galaxy.dll",
    "Window.dll",
});

constexpr auto localized = std::to_array<Name>({
    "Botpack",
    "Core",
    "Engine",
    "Editor",
    "IpDrv",
    "UMenu",
    "UTMenu",
    "UBrowser",
    "UnrealI",
    "UnrealShare",
    "UnrealTournament",
    "UWeb",
});

}  // namespace

std::span<const StockFiles> stockPackages() {
    return packages;
}

std::span<const std::string_view> programNames() {
    return programs;
}

std::span<const std::string_view> localizedNames() {
    return localized;
}

}  // namespace tessaro::sample
