#include "servers/launch.h"

#include <gmock/gmock.h>

#include <functional>

#include "servers/recordingmainwindow.h"
#include "servers/serverfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Started = RecordingProcesses::Run;

const Message notFound{
    "UnrealTournament executable not found. Please check all paths and try again",
    "Error Starting: UnrealTournament", Buttons::Ok, Icon::Stop};

class Launching : public ServerFixture {
  protected:
    void installGame() { disk_.write(game_, "MZ"); }
    void launch() { LaunchOnServer(program_, window_, "192.168.0.10", "7777"); }

    const std::string game_ = systemFolder + R"(\UnrealTournament.exe)";
    RecordingMainWindow window_;
};

TEST_F(Launching, TheLineIsTheGameTheAddressAndThePortGluedToIt) {
    installGame();
    launch();
    EXPECT_THAT(world_.processes.runs,
                ElementsAre(Started{R"(C:\UT\System\unrealtournament.exe 192.168.0.10?port=7777)",
                                    Visibility::Visible}));
}

TEST_F(Launching, NothingOfTheLineIsQuotedOrLookedAt) {
    program_.gamePaths.UTSysPath = R"(C:\My UT\System)";
    disk_.write(R"(C:\My UT\System\unrealtournament.exe)", "MZ");
    LaunchOnServer(program_, window_, "a b \"c", "");
    EXPECT_THAT(world_.processes.runs,
                ElementsAre(Started{R"(C:\My UT\System\unrealtournament.exe a b "c?port=)",
                                    Visibility::Visible}));
}

TEST_F(Launching, TheMainWindowIsMinimisedWhileTheGameRunsAndThenAsTheSettingSays) {
    installGame();
    program_.settings.WindowSize = "2";
    world_.processes.child = [&](const std::string&) {
        EXPECT_THAT(window_.states, ElementsAre(windowstate::Minimised));
    };
    launch();
    EXPECT_THAT(window_.states, ElementsAre(windowstate::Minimised, windowstate::Maximised));
}

TEST_F(Launching, AFifthOfASecondPassesBetweenTheMinimisingAndTheStart) {
    installGame();
    const double start = world_.events.now;
    world_.events.onPump = [&] {
        EXPECT_THAT(window_.states, ElementsAre(windowstate::Minimised));
        EXPECT_THAT(world_.processes.runs, IsEmpty());
    };
    launch();
    EXPECT_EQ(world_.processes.runs.size(), 1u);
    EXPECT_GE(world_.events.now - start, 0.2);
    EXPECT_LE(world_.events.now - start, 0.2 + 2 * world_.events.step);
}

TEST_F(Launching, WithoutTheGameTheUserIsToldAndTheWindowStaysAsItIs) {
    world_.dialogs.answer(Answer::Ok);
    launch();
    EXPECT_THAT(world_.processes.runs, IsEmpty());
    EXPECT_THAT(window_.states, IsEmpty());
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(notFound));
}

TEST_F(Launching, AGameThatIsGoneAfterItsRunIsToldOf) {
    installGame();
    world_.processes.child = [&](const std::string&) { std::filesystem::remove(disk_.at(game_)); };
    world_.dialogs.answer(Answer::Ok);
    launch();
    EXPECT_EQ(world_.processes.runs.size(), 1u);
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(notFound));
}

TEST_F(Launching, ASystemFolderOnADriveThatIsNotThereIsTheSameAsNoGame) {
    program_.gamePaths.UTSysPath = R"(Q:\UT\System)";
    world_.dialogs.answer(Answer::Ok);
    launch();
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(notFound));
}

TEST_F(Launching, AFolderOfTheGamesNameIsNoGame) {
    disk_.makeFolder(game_);
    world_.dialogs.answer(Answer::Ok);
    launch();
    EXPECT_THAT(world_.processes.runs, IsEmpty());
    EXPECT_THAT(world_.dialogs.messages, ElementsAre(notFound));
}

}  // namespace
}  // namespace tessaro::test
