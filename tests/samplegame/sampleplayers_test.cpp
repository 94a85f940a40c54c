#include "tools/samplegame/players.h"

#include <gmock/gmock.h>

#include "players/UserMan.h"
#include "support/testprogram.h"
#include "tools/samplegame/inifiles.h"

namespace tessaro::sample {
namespace {

using ::testing::ElementsAre;

// A program beside which the archive lies.
class SamplePlayers : public ::testing::Test {
  protected:
    SamplePlayers() {
        program.gamePaths.UTSysPath = "C:\\UT\\System";
        disk.write("C:\\UT\\System\\user.ini", userIni());
        writePlayers(disk.at("C:\\Tessaro"));
    }
    std::vector<std::string> listed() {
        ListItems rows = makeUserTable();
        userMan.LoadPlayerList(rows, userMan.listFile());
        std::vector<std::string> names;
        for (std::size_t i = 1; i <= rows.count(); ++i)
            names.push_back(rows.item(i).text + " " + playerAt(rows, i).UTTeam);
        return names;
    }

    test::TestProgram test;
    test::TestWorld& disk = test.world;
    Program& program = test.program;
    UserMan userMan{program};
};

TEST_F(SamplePlayers, AreListedWithTheirCopies) {
    EXPECT_THAT(listed(), ElementsAre("Marrow Blue", "Old Ferryman Gold"));
}

TEST_F(SamplePlayers, AreWholeProfilesOfThePlayersThatTheListNames) {
    const std::string rest = userIni().substr(userIni().find("\r\n\r\n"));
    for (const auto& [file, name] :
         {std::pair("C:\\Tessaro\\users\\userini0.bak", "Marrow"),
          std::pair("C:\\Tessaro\\users\\userini1.bak", "Old Ferryman")}) {
        clsINI INI = program.makeINI();
        INI.inifile(file);
        const std::string before = disk.read(file);
        EXPECT_EQ(INI.getKeyValue("Name", "none", "DefaultPlayer"), name);
        EXPECT_NE(INI.getKeyValue("Voice", "none", "DefaultPlayer"), "none");
        EXPECT_TRUE(before.ends_with(rest)) << file;
        EXPECT_EQ(disk.read(file), before) << "nothing had to be filled in";
    }
}

TEST_F(SamplePlayers, LeaveAnArchiveAloneThatIsThereAlready) {
    disk.write("C:\\Tessaro\\playerlist.lst", "");
    disk.write("C:\\Tessaro\\users\\userini0.bak", "mine");
    writePlayers(disk.at("C:\\Tessaro"));
    EXPECT_EQ(disk.read("C:\\Tessaro\\playerlist.lst"), "");
    EXPECT_EQ(disk.read("C:\\Tessaro\\users\\userini0.bak"), "mine");
}

}  // namespace
}  // namespace tessaro::sample
