// The dialog on files of the size and untidiness of a game that has been played for years.

#include <algorithm>
#include <filesystem>

#include "platform/text/encoding.h"
#include "prefs/prefsrulesfixture.h"
#include "support/disk.h"
#include "tools/samplegame/inifiles.h"

namespace tessaro::test {
namespace {

void replaceOnce(std::string& text, std::string_view what, const std::string& with) {
    const std::size_t at = text.find(what);
    ASSERT_NE(at, std::string::npos) << what;
    text.replace(at, what.size(), with);
}

std::string replaced(std::string text, std::string_view what, const std::string& with) {
    replaceOnce(text, what, with);
    return text;
}

// Every second hundred of lines ends as on Unix.
std::string withMixedLineEnds(const std::string& text) {
    std::string mixed;
    std::size_t line = 0;
    for (const char letter : text) {
        if (letter == '\n') ++line;
        if (letter != '\r' || line / 100 % 2 == 0) mixed += letter;
    }
    return mixed;
}

// The game's file with mixed line ends, letters of the code page, a key without a value, a line
// without `=`, repeated keys and second sections of the names that are written to.
std::string untidyGameIni() {
    std::string text = withMixedLineEnds(sample::unrealTournamentIni());
    replaceOnce(text, "LocalMap=", "; f\xFCr sp\xE4ter \x80\r\nEmpty=\r\nlocalmap = ");
    replaceOnce(text, "PurgeCacheDays=30", "PurgeCacheDays=30\nPurgeCacheDays=99\nNoEquals");
    return text + "[URL]\r\nLocalMap=second.unr\r\n[Core.System]\nPurgeCacheDays=77\r\n\x1A";
}

const std::string ladder = "\r\n[Botpack.Ladder]\r\nHasBeatenGame=False\r\n;end";

class RealFilesTest : public PreferencesFixture {
  protected:
    void makeGameWith(const std::string& game, const std::string& user) {
        makeGame(test.world, "C:\\UT");
        test.world.write(gameIni, game);
        test.world.write(userIni, user);
    }
    // Opens the dialog, lets the user change something, applies and closes, ten times.
    void openAndApplyTenTimes(const std::function<void(GameTweaks&)>& change) {
        for (int round = 0; round < 10; ++round) {
            RecordingView dialog;
            PrefsRules rules(program, dialog);
            rules.open();
            change(dialog.gameTweaks);
            rules.apply();
            rules.cancel();
            EXPECT_EQ(dialog.steps, (Steps{"skin", "hide", "skin", "show", "close"}));
        }
    }
};

void chooseOwnMap(GameTweaks& tweaks) {
    tweaks = {"DM-Größe.unr", StartMap::Custom, "14", 1};
}

TEST_F(RealFilesTest, TheUntidyFileIsAsMeant) {
    const std::string text = untidyGameIni();
    const auto lines = std::count(text.begin(), text.end(), '\n');
    const auto returns = std::count(text.begin(), text.end(), '\r');
    EXPECT_GT(lines, 1000);
    EXPECT_GT(returns, 100);
    EXPECT_GT(lines, returns + 100);
    EXPECT_EQ(detectEncoding(text), Encoding::CodePage);
}

TEST_F(RealFilesTest, OnlyTheThreeLinesDiffer) {
    const std::string game = untidyGameIni();
    const std::string user = sample::userIni() + ladder;
    makeGameWith(game, user);
    openAndApplyTenTimes(chooseOwnMap);
    EXPECT_EQ(test.world.read(gameIni), replaced(replaced(game, "localmap = CityIntro.unr",
                                                          "localmap = DM-Gr\xF6\xDF\x65.unr"),
                                                 "PurgeCacheDays=30", "PurgeCacheDays=14"));
    EXPECT_EQ(test.world.read(userIni),
              replaced(user, "HasBeatenGame=False", "HasBeatenGame=True"));
}

TEST_F(RealFilesTest, WithoutAChangeOnlyTheSpellingOfTheFlybyDiffers) {
    const std::string game = untidyGameIni();
    const std::string user = sample::userIni() + ladder;
    makeGameWith(game, user);
    openAndApplyTenTimes([](GameTweaks&) {});
    EXPECT_EQ(test.world.read(gameIni),
              replaced(game, "localmap = CityIntro.unr", "localmap = Cityintro.unr"));
    EXPECT_EQ(test.world.read(userIni), user);
}

TEST_F(RealFilesTest, ACustomMapThatNobodyChangedLeavesEveryByte) {
    const std::string game =
        replaced(untidyGameIni(), "localmap = CityIntro.unr", "localmap = DM-\xD6l.unr");
    const std::string user = sample::userIni() + ladder;
    makeGameWith(game, user);
    openAndApplyTenTimes([](GameTweaks&) {});
    EXPECT_EQ(test.world.read(gameIni), game);
    EXPECT_EQ(test.world.read(userIni), user);
}

TEST_F(RealFilesTest, AFileOfWideCharactersStaysOne) {
    for (const Encoding encoding : {Encoding::Utf16LittleEndian, Encoding::Utf16BigEndian}) {
        const std::string plain = decodeText(untidyGameIni(), Encoding::CodePage);
        const auto wide = [&](const std::string& text) { return *encodeText(text, encoding); };
        makeGameWith(wide(plain), wide(sample::userIni() + ladder));
        openAndApplyTenTimes(chooseOwnMap);
        EXPECT_EQ(
            test.world.read(gameIni),
            wide(replaced(replaced(plain, "localmap = CityIntro.unr", "localmap = DM-Größe.unr"),
                          "PurgeCacheDays=30", "PurgeCacheDays=14")));
        EXPECT_EQ(test.world.read(userIni),
                  wide(replaced(sample::userIni() + ladder, "HasBeatenGame=False",
                                "HasBeatenGame=True")));
    }
}

TEST_F(RealFilesTest, AFileOfUtf8StaysOne) {
    const std::string plain = decodeText(untidyGameIni(), Encoding::CodePage);
    makeGameWith(plain, sample::userIni() + ladder);
    openAndApplyTenTimes(chooseOwnMap);
    EXPECT_EQ(test.world.read(gameIni),
              replaced(replaced(plain, "localmap = CityIntro.unr", "localmap = DM-Größe.unr"),
                       "PurgeCacheDays=30", "PurgeCacheDays=14"));
}

TEST_F(RealFilesTest, AGameNotYetWonGainsTheLadderOnce) {
    const std::string user = sample::userIni();
    makeGameWith(untidyGameIni(), user);
    openAndApplyTenTimes([](GameTweaks& tweaks) { tweaks.bossSkins = 1; });
    EXPECT_EQ(test.world.read(userIni), user + "[Botpack.Ladder]\r\nHasBeatenGame=True\r\n");
}

TEST_F(RealFilesTest, PermissionsAndLinksOfTheGamesFilesStay) {
    if (!hasLinks()) GTEST_SKIP() << noLinks;
    namespace fs = std::filesystem;
    makeGameWith(untidyGameIni(), sample::userIni() + ladder);
    const HostPath link = test.world.at(gameIni);
    const HostPath real = test.world.at("C:\\Elsewhere.ini");
    fs::rename(link, real);
    fs::create_symlink(real, link);
    fs::permissions(real, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    openAndApplyTenTimes(chooseOwnMap);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(real).permissions(),
              fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_NE(test.world.read("C:\\Elsewhere.ini").find("PurgeCacheDays=14"), std::string::npos);
}

}  // namespace
}  // namespace tessaro::test
