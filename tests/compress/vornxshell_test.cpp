#include "compress/vornxshell.h"

#include <gmock/gmock.h>

#include "compress/packer.h"

namespace tessaro {
namespace {

using ::testing::ElementsAre;
using Started = test::RecordingProcesses::Run;

const GamePaths game{"", "", "", R"(C:\UnrealTournament\System)"};

class VornxShell : public ::testing::Test {
  protected:
    test::TestProgram world_;

    void runUcc(const std::optional<SystemVersion>& system) {
        world_.program.gamePaths = game;
        Ucc(world_.program, system).run(UccTask::Compress, R"(C:\a.unr)");
    }
    std::string onlyLine() const { return world_.processes.runs.at(0).commandLine; }
};

TEST_F(VornxShell, ToolsRunHiddenAndTheGameRunsVisible) {
    RunHiddenInherit(world_.program, "one");
    RunHidden(world_.program, "two");
    RunVisible(world_.program, "three");
    EXPECT_THAT(world_.processes.runs,
                ElementsAre(Started{"one", Visibility::Hidden}, Started{"two", Visibility::Hidden},
                            Started{"three", Visibility::Visible}));
}

TEST_F(VornxShell, OnlyTheFileIsQuotedSoASystemFolderWithBlanksBreaksTheLine) {
    const GamePaths blanks{"", "", "", R"(C:\My Games\System)"};
    EXPECT_EQ(uccCommandLine(blanks, UccTask::Compress, R"(C:\My Maps\DM-A.unr)", false),
              R"(C:\My Games\System\ucc.exe compress "C:\My Maps\DM-A.unr")");
}

TEST_F(VornxShell, OnWindows98NoBlankStandsBeforeTheDriveLetter) {
    EXPECT_EQ(uccCommandLine(game, UccTask::Compress, R"(C:\a.unr)", true),
              R"(command.com /cC:\UnrealTournament\System\ucc.exe compress "C:\a.unr")");
}

TEST_F(VornxShell, DecompressionTakesTheSameTwoRoutes) {
    EXPECT_EQ(uccCommandLine(game, UccTask::Decompress, R"(C:\a.unr.uz)", false),
              R"(C:\UnrealTournament\System\ucc.exe decompress "C:\a.unr.uz")");
    EXPECT_EQ(uccCommandLine(game, UccTask::Decompress, R"(C:\a.unr.uz)", true),
              R"(command.com /cC:\UnrealTournament\System\ucc.exe decompress "C:\a.unr.uz")");
}

TEST_F(VornxShell, TheSystemsNameChoosesTheRoute) {
    runUcc(test::windows98);
    EXPECT_TRUE(onlyLine().starts_with("command.com /cC:"));
}

TEST_F(VornxShell, NeitherWindowsMENorTheNTFamilyGoThroughTheShell) {
    runUcc(SystemVersion{4, 90, 3000, 1, "", ""});
    runUcc(SystemVersion{5, 1, 2600, 2, "", ""});
    runUcc(test::anotherSystem);
    for (const Started& run : world_.processes.runs)
        EXPECT_TRUE(run.commandLine.starts_with("C:")) << run.commandLine;
}

TEST_F(VornxShell, ASystemThatDoesNotSayItsVersionTakesTheDirectRoute) {
    runUcc(std::nullopt);
    EXPECT_TRUE(onlyLine().starts_with("C:"));
}

TEST_F(VornxShell, PendingEventsAreServedOnceAfterEachProcess) {
    int runsBefore = 0;
    world_.events.onPump = [&] { runsBefore = static_cast<int>(world_.processes.runs.size()); };
    runUcc(test::anotherSystem);
    EXPECT_EQ(world_.events.pumps, 1);
    EXPECT_EQ(runsBefore, 1);
}

}  // namespace
}  // namespace tessaro
