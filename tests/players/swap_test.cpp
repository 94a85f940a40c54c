// A player's copy takes the place of the game's file.

#include "players/archivefixture.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const Message notFound{"Backupfile not found", "Cannot Load Player", Buttons::Ok, Icon::Stop};

class Swap : public ArchiveFixture {
  protected:
    Swap() {
        archive({"First", "Second", "Third"});
        users.rows.pick(2);
        events.pumps = 0;
        disk.write(userIni, "[DefaultPlayer]\r\nName=Current\r\n");
    }
    void swap() { userMan.LoadSelectedPlayer(users); }
    int swapError() {
        return errorOf([&] { swap(); });
    }
    bool gameHasItsFile() const { return disk.exists(userIni); }
    static HostPath away(const HostPath& file) { return file.string() + ".away"; }
};

TEST_F(Swap, TheSelectedPlayersCopyTakesThePlaceOfTheGamesFileByteForByte) {
    swap();
    EXPECT_EQ(disk.read(userIni), profileOf("Second"));
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Second"));
    EXPECT_EQ(users.name, "Second");
    EXPECT_EQ(program.settings.DefUser, "Second");
    EXPECT_THAT(disk.names("C:\\UT\\System"), ElementsAre("user.ini"));
}

TEST_F(Swap, TheButtonIsOutOfReachForTheWholeRun) {
    std::vector<std::string> whileWaiting;
    events.onPump = [&] { whileWaiting = users.steps; };
    swap();
    EXPECT_THAT(whileWaiting, ElementsAre("disable"));
    EXPECT_THAT(users.steps, ElementsAre("disable", "name Second", "enable"));
}

TEST_F(Swap, APlayerWhoWasSavedFirstCanBeSwappedBackTheSameByteForByte) {
    const std::string before =
        "; \xE4\n[DefaultPlayer]\nName= Current "
        "\nClass=A\nteam=0\nskin=B\nFace=C\nVoice=D\nx\r\r\n\n"
        "[defaultplayer]\nName=Nobody\n\t; end";
    disk.write(userIni, before);
    userMan.ArchiveCurrentPlayer(users);
    users.rows.pick(2);
    swap();
    EXPECT_EQ(disk.read(userIni), profileOf("Second"));
    users.rows.pick(4);
    users.name = "Second";
    swap();
    EXPECT_EQ(disk.read(userIni), before);
}

TEST_F(Swap, TheFileGoesBeforeTheCopyComes) {
    std::vector<std::string> done;
    host.afterRemoval = [&](const HostPath&) { done.emplace_back("removed"); };
    host.afterRename = [&](const HostPath&) { done.emplace_back("copied"); };
    events.onPump = [&] { done.emplace_back(gameHasItsFile() ? "waits" : "waits without"); };
    events.step = 1;  // every pause is one pump
    swap();
    // 0.1 seconds, the events once more, and 0.2 seconds after each of the two.
    EXPECT_THAT(done, ElementsAre("waits", "waits", "removed", "waits without", "copied", "waits"));
}

TEST_F(Swap, EachPauseHasItsLength) {
    events.step = 0.05;
    swap();
    // The clock is read before each pump.
    EXPECT_EQ(events.pumps, 2 + 1 + 4 + 4);
}

TEST_F(Swap, AGameWithoutAFileGetsOne) {
    fs::remove(disk.at(userIni));
    swap();
    EXPECT_EQ(disk.read(userIni), profileOf("Second"));
}

TEST_F(Swap, TheFilesNameIsFoundInAnyLetterCase) {
    fs::rename(disk.at(userIni), disk.at("C:\\UT\\System\\User.ini"));
    swap();
    EXPECT_THAT(disk.names("C:\\UT\\System"), ElementsAre("user.ini"));
    EXPECT_EQ(disk.read(userIni), profileOf("Second"));
}

TEST_F(Swap, WithoutAPickTheFirstRowIsTheSelectedOne) {
    users.rows.clear();
    load();
    swap();
    EXPECT_EQ(users.name, "First");
}

TEST_F(Swap, AnEmptyListRaises91AndTouchesNothing) {
    users.rows.clear();
    EXPECT_EQ(swapError(), errors::ObjectNotSet);
    EXPECT_TRUE(gameHasItsFile());
}

TEST_F(Swap, AMissingCopyIsToldAndItsRowGoesButNotItsLine) {
    const std::string before = disk.read(list);
    const std::string game = disk.read(userIni);
    fs::remove(disk.at(copyOf("userini1.bak")));
    answer(Answer::Ok);
    swap();
    EXPECT_THAT(messages(), ElementsAre(notFound));
    EXPECT_THAT(names(), ElementsAre("First", "Third"));
    EXPECT_EQ(disk.read(list), before);
    EXPECT_EQ(disk.read(userIni), game);
    EXPECT_EQ(users.name, "Current");
    EXPECT_THAT(users.steps, ElementsAre("disable", "enable"));
}

TEST_F(Swap, ARowWhoseCopyIsNoSingleFileCountsAsMissing) {
    for (const char* file : {"", "*.bak", "userini?.bak"}) {
        users.rows.clear();
        addPlayer(users.rows, {"Odd", "", "", "", "", "", file});
        answer(Answer::Ok);
        swap();
        EXPECT_TRUE(gameHasItsFile()) << file;
        EXPECT_THAT(rows(), IsEmpty()) << file;
    }
}

TEST_F(Swap, ACopyThatVanishesBetweenTwoStepsIsRaisedAndTheGamesFileIsGone) {
    host.afterRemoval = [&](const HostPath&) { fs::remove(disk.at(copyOf("userini1.bak"))); };
    EXPECT_EQ(swapError(), errors::FileNotFound);
    EXPECT_THAT(disk.names("C:\\UT\\System"), IsEmpty());
    EXPECT_THAT(users.steps, ElementsAre("disable"));
}

TEST_F(Swap, ACopyThatDoesNotFitOnTheDiskLeavesNoFragment) {
    host.setDiskSpace(20);
    EXPECT_EQ(swapError(), errors::DiskFull);
    EXPECT_THAT(disk.names("C:\\UT\\System"), IsEmpty());
}

TEST_F(Swap, AGamesFileThatCannotBeDeletedIsRaisedAndStays) {
    const std::string before = disk.read(userIni);
    host.refuse(Call::RemoveFile, errors::PermissionDenied, "user.ini");
    EXPECT_EQ(swapError(), errors::PermissionDenied);
    host.relent();
    fs::permissions(disk.at(userIni), fs::perms(0444));
    EXPECT_EQ(swapError(), errors::PathFileAccess);
    EXPECT_EQ(disk.read(userIni), before);
}

TEST_F(Swap, AFolderInTheGamesFilesPlaceIsRaised) {
    fs::remove(disk.at(userIni));
    disk.makeFolder(userIni);
    EXPECT_EQ(swapError(), errors::PathFileAccess);
}

TEST_F(Swap, TheWaitForTheFileToGoHasNoEnd) {
    host.afterRemoval = [&](const HostPath& file) { disk.writeHost(file, "back again"); };
    events.step = 0.2;
    events.onPump = [&] {
        if (events.pumps == 1000) fs::remove(disk.at(userIni));
    };
    swap();
    EXPECT_GE(events.pumps, 1000);
    EXPECT_EQ(disk.read(userIni), profileOf("Second"));
}

TEST_F(Swap, TheWaitForTheFileToComeHasNoEnd) {
    host.afterRename = [&](const HostPath& file) { fs::rename(file, away(file)); };
    events.step = 0.2;
    events.onPump = [&] {
        if (events.pumps == 1000) fs::rename(away(disk.at(userIni)), disk.at(userIni));
    };
    swap();
    EXPECT_GE(events.pumps, 1000);
    EXPECT_EQ(users.name, "Second");
}

TEST_F(Swap, OnlyWhatComesAfterTheFirstPauseIsAWaitWithoutAnEnd) {
    swap();
    EXPECT_EQ(events.endlessPumps, 0);
    host.afterRename = [&](const HostPath& file) { fs::rename(file, away(file)); };
    events.onPump = [&] {
        if (events.endlessPumps == 3) fs::rename(away(disk.at(userIni)), disk.at(userIni));
    };
    users.name = "Current";
    swap();
    EXPECT_GE(events.endlessPumps, 3);
}

TEST_F(Swap, ACopyThatBearsTheCurrentNameIsWaitedForWithoutAnEnd) {
    disk.write(copyOf("userini1.bak"), profileOf("Current"));
    int turns = 0;
    events.onBlocked = [&] {
        if (++turns == 500) disk.write(userIni, profileOf("At last"));
    };
    swap();
    EXPECT_EQ(turns, 500);
    EXPECT_EQ(users.name, "At last");
    EXPECT_EQ(program.settings.DefUser, "At last");
}

TEST_F(Swap, AProgramThatEndsMeanwhileLeavesTheWait) {
    struct Ended {};
    disk.write(copyOf("userini1.bak"), profileOf("Current"));
    events.onBlocked = [] { throw Ended(); };
    EXPECT_THROW(swap(), Ended);
    EXPECT_EQ(disk.read(userIni), profileOf("Current"));
}

TEST_F(Swap, ACopyWithoutANameGetsTheDefaultOneInTheGamesFileOnly) {
    disk.write(copyOf("userini1.bak"), "[DefaultPlayer]\r\nteam=1\r\n");
    swap();
    EXPECT_EQ(users.name, "Player");
    EXPECT_EQ(disk.read(userIni), "[DefaultPlayer]\r\nteam=1\r\nName=Player\r\n");
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), "[DefaultPlayer]\r\nteam=1\r\n");
}

TEST_F(Swap, NamesOutsideTheCodePageComeThrough) {
    disk.write(copyOf("userini1.bak"), profileOf("Игрок †"));
    swap();
    EXPECT_EQ(users.name, "Игрок †");
    EXPECT_EQ(disk.read(userIni), profileOf("Игрок †"));
}

}  // namespace
}  // namespace tessaro::test
