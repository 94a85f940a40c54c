#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "core/program.h"
#include "support/testprogram.h"

namespace tessaro::test {

/// Makes the game's five folders and its two files below `root`.
inline void makeGame(TestWorld& world, const std::string& root) {
    for (const char* folder : {"sounds", "maps", "textures", "system", "cache"})
        world.makeFolder(root + "\\" + folder);
    world.write(root + "\\system\\unrealtournament.ini",
                "[URL]\r\nLocalMap=CityIntro.unr\r\n[Core.System]\r\nPurgeCacheDays=30\r\n");
    world.write(root + "\\system\\user.ini", "[Botpack.Ladder]\r\nHasBeatenGame=False\r\n");
}

/// What a program has in memory whose settings name the game in `C:\UT`, with sounds on.
inline void nameGame(Program& program) {
    program.gamePaths = {"C:\\UT", "C:\\UT\\cache", "C:\\UT\\maps", "C:\\UT\\system"};
    program.settings = {.Sounds = "1",
                        .AutoSave = "0",
                        .ShowSplash = "0",
                        .TimesUsed = 7,
                        .Skin = "2",
                        .ExtractDest = "C:\\Taken",
                        .DefUser = "Somebody",
                        .ASCIIFont = "Courier",
                        .WindowSize = "0"};
}

/// The settings file of that program.
inline constexpr char settingsOfGame[] =
    "[UTPaths]\r\nUTPath=C:\\UT\r\nUTCachePath=C:\\UT\\cache\r\nUTMapPath=C:\\UT\\maps\r\n"
    "UTSysPath=C:\\UT\\system\r\n"
    "[Misc]\r\nSounds=1\r\nAutoSave=0\r\nShowSplash=0\r\nTimesUsed=7\r\nSkin=2\r\n"
    "[Common]\r\nVORNX=C:\\Taken\r\nDefUser=Somebody\r\nASCIIFont=Courier\r\nWindowSize=0\r\n";

/// Such a program. Neither the game nor the settings file is made yet.
class GameFixture : public testing::Test {
  protected:
    GameFixture() { nameGame(program); }

    TestProgram test;
    Program& program = test.program;
    const std::string gameIni = "C:\\UT\\system\\unrealtournament.ini";
    const std::string userIni = "C:\\UT\\system\\user.ini";
};

}  // namespace tessaro::test
