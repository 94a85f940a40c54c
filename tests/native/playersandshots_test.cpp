// The players and the screenshots of the sample game as it lies on Linux.

#include "native/nativesampletest.h"
#include "players/archivefixture.h"
#include "players/usermanager.h"
#include "screenshots/viewerfixture.h"
#include "tools/samplegame/players.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

class NativePlayers : public NativeSampleTest {
  protected:
    NativePlayers() {
        sample::writePlayers(world.world.at("C:\\Tessaro"));
        manager.open();
    }
    // Sets a player of the archive as the current one, and lets the one before go.
    void setAsCurrent(std::size_t row) {
        users.rows.pick(row);
        world.dialogs.answer(Answer::Yes);
        world.dialogs.answer(Answer::No);
        manager.setAsCurrent();
    }
    std::string copy(int number) const {
        return world.world.read("C:\\Tessaro\\users\\userini" + std::to_string(number) + ".bak");
    }

    RecordingUsers users;
    UserMan userMan{program};
    UserManager manager{program, userMan, users};
};

TEST_F(NativePlayers, ASwapTakesThePlaceOfTheIniThatTheGameReads) {
    EXPECT_EQ(users.name, "Player");
    setAsCurrent(2);
    EXPECT_TRUE(read(programs() / "User.ini") == copy(1));
    EXPECT_FALSE(fs::exists(programs() / "user.ini"));
    EXPECT_FALSE(fs::exists(written() / "System" / "User.ini"));
    EXPECT_EQ(users.name, "Old Ferryman");
}

TEST_F(NativePlayers, OfTwoInisTheUpperIsSwappedAndTheLowerStays) {
    const std::string lower = read(programs() / "User.ini");
    write(written() / "System" / "User.ini", "[DefaultPlayer]\nName=Walker\n");
    manager.open();
    EXPECT_EQ(users.name, "Walker");
    setAsCurrent(1);
    EXPECT_TRUE(read(written() / "System" / "User.ini") == copy(0));
    EXPECT_TRUE(read(programs() / "User.ini") == lower);
}

TEST_F(NativePlayers, InAGameThatWasNeverStartedASwapMakesTheIniThatItWillRead) {
    fs::remove(programs() / "User.ini");
    const std::string madeOf = read(programs() / "DefUser.ini");
    manager.open();
    setAsCurrent(2);
    EXPECT_TRUE(read(written() / "System" / "User.ini") == copy(1));
    EXPECT_FALSE(fs::exists(programs() / "User.ini"));
    EXPECT_TRUE(read(programs() / "DefUser.ini") == madeOf);
}

TEST_F(NativePlayers, ASavedPlayerComesBackTheSameByteForByte) {
    world.dialogs.answer(Answer::Yes);
    userMan.OfferSaveCurrentPlayer(users);
    const std::string saved = read(programs() / "User.ini");
    users.rows.pick(1);
    userMan.LoadSelectedPlayer(users);
    EXPECT_TRUE(read(programs() / "User.ini") == copy(0));
    users.rows.pick(3);
    userMan.LoadSelectedPlayer(users);
    EXPECT_TRUE(read(programs() / "User.ini") == saved);
    EXPECT_EQ(users.name, "Player");
}

TEST_F(NativePlayers, TheGameForLinuxIsStarted) {
    manager.play();
    EXPECT_EQ(read(written() / "System" / "UnrealTournament.cmdline"),
              (programs() / ("ut-bin" + nativeNames().suffix)).native() + "\n");
}

// Reads the pictures' bytes and shows none.
class PictureReader : public RecordingScreen {
  public:
    explicit PictureReader(Files& files) : RecordingScreen(files), files_(files) {}
    std::vector<std::string> read;

    void loadPicture(const std::string& path) override { read.push_back(files_.read(path)); }

  private:
    Files& files_;
};

class NativeScreenshots : public NativeSampleTest {
  protected:
    PictureReader screen{program.files};
    ScreenshotViewer viewer{program, screen};
};

TEST_F(NativeScreenshots, ShowThePicturesOfAllFoldersThatSystemIs) {
    write(written() / "System" / "Shot0005.bmp", "of the home");
    write(programs() / "shot0003.BMP", "of the programs");
    viewer.LoadScreenshotList();
    EXPECT_THAT(screen.names, ElementsAre("Shot0000.bmp", "Shot0001.bmp", "shot0003.BMP",
                                          "Shot0004.bmp", "Shot0005.bmp"));
    EXPECT_EQ(screen.read.back(), read(game() / "System" / "Shot0000.bmp"));
    viewer.select(4);
    EXPECT_EQ(screen.read.back(), "of the home");
    viewer.select(2);
    EXPECT_EQ(screen.read.back(), "of the programs");
}

TEST_F(NativeScreenshots, OneThatIsDeletedGoesWhereItLies) {
    write(written() / "System" / "Shot0005.bmp", "of the home");
    viewer.LoadScreenshotList();
    for (const int index : {3, 0}) {
        viewer.select(index);
        world.dialogs.answer(Answer::Ok);
        viewer.DeleteSelectedPicture();
    }
    EXPECT_FALSE(fs::exists(written() / "System" / "Shot0005.bmp"));
    EXPECT_FALSE(fs::exists(game() / "System" / "Shot0000.bmp"));
    EXPECT_TRUE(fs::exists(game() / "System" / "Shot0004.bmp"));
    EXPECT_THAT(screen.names, ElementsAre("Shot0001.bmp", "Shot0004.bmp"));
}

}  // namespace
}  // namespace tessaro::test
