// The start of the program with its real main window: the folder check, the forced dialog, the
// menus.

#include <QAction>
#include <filesystem>

#include "core/MainFrm.h"
#include "core/splash.h"
#include "prefs/prefsformfixture.h"

namespace tessaro::test {
namespace {

using Names = std::vector<std::string>;

class PrefsStart : public PrefsFormFixture {
  protected:
    void start() {
        guarded(forms_, [this] { forms_.show<MainFrm>(); });
    }
    // A first start: no settings file, and the game, if anywhere, not where it is looked for.
    void removeSettings() { std::filesystem::remove(world().at(settingsFile)); }
    void useMenu(const char* item) {
        forms_.get<MainFrm>().findChild<QAction*>(QLatin1String(item))->trigger();
    }
    bool prefsVisible() { return loaded() != nullptr && loaded()->isVisible(); }
    Names sounds() { return world_.sounds.names; }
    // Steps of the user, each taken once the dialog stands.
    WhenItComes whenPrefsComes(std::function<void()> act) {
        return {[this] { return prefsVisible(); }, std::move(act)};
    }
    static Message refusal(const std::string& folder) {
        return {"The Specified Folder: " + folder +
                    " does not contain a valid\ndirectory structure, Please try again.",
                "Please Locate UT Directory", Buttons::OkCancel, Icon::None};
    }
};

TEST_F(PrefsStart, WithAGoodGameTheDialogIsLoadedHiddenAndTheGreetingPlays) {
    makeGame(world(), "C:\\UT");
    start();
    ASSERT_NE(loaded(), nullptr);
    EXPECT_FALSE(prefsVisible());
    EXPECT_EQ(textOf("Text1"), "C:\\UT");
    EXPECT_EQ(sounds(), (Names{"godlike"}));
    EXPECT_TRUE(forms_.loaded<MainFrm>()->isVisible());
}

TEST_F(PrefsStart, TheLoadInTheCheckLeavesItsDefaultsInTheGamesFiles) {
    makeGame(world(), "C:\\UT");
    world().write(gameIni, "[URL]\r\n");
    world().write(userIni, "");
    start();
    EXPECT_TRUE(holds(gameIni, "LocalMap=CityIntro.unr"));
    EXPECT_TRUE(holds(userIni, "HasBeatenGame=False"));
}

TEST_F(PrefsStart, AFirstStartLeadsToTheRightFolderInsideTheCheck) {
    removeSettings();
    world().makeFolder("C:\\Wrong");
    makeGame(world(), "C:\\Games\\Unreal Tournament");
    dialogs().pick("C:\\Wrong");
    dialogs().answer(Answer::Ok);
    dialogs().pick("");
    dialogs().answer(Answer::Ok);
    dialogs().pick("C:\\Games\\Unreal Tournament");
    const WhenItComes splashComes([this] { return forms_.loaded<splash>() != nullptr; },
                                  [this] { forms_.unload(*forms_.loaded<splash>()); });
    start();
    EXPECT_EQ(dialogs().messages, (std::vector<Message>{refusal("C:\\Wrong"), refusal("")}));
    EXPECT_FALSE(prefsVisible());
    EXPECT_TRUE(splashComes.acted()) << "The paths are good by the time they are tested";
    EXPECT_EQ(sounds(), (Names{"godlike"}));
    EXPECT_EQ(program_.gamePaths.UTSysPath, "C:\\Games\\Unreal Tournament\\system");
    EXPECT_TRUE(holds(settingsFile, "UTPath=C:\\UnrealTournament")) << "Nothing is saved yet";
    forms_.unload(forms_.get<MainFrm>());
    EXPECT_TRUE(holds(settingsFile, "UTPath=C:\\Games\\Unreal Tournament"));
    EXPECT_TRUE(holds(settingsFile, "VORNX=C:\\UTMaps"));
    EXPECT_TRUE(holds(settingsFile, "DefUser=Player"));
    EXPECT_TRUE(holds(settingsFile, "ASCIIFont=MS Sans"));
    EXPECT_TRUE(holds(settingsFile, "Skin=0"));
    EXPECT_TRUE(holds(settingsFile, "TimesUsed=2"));
}

TEST_F(PrefsStart, WithoutAGameTheDialogIsForcedAndNeitherSplashNorGreetingFollow) {
    removeSettings();
    makeGame(world(), "C:\\Right");
    dialogs().pick("");
    dialogs().answer(Answer::Cancel);
    const auto choose = whenPrefsComes([this] {
        EXPECT_FALSE(control("Command6").isEnabled());
        dialogs().pick("C:\\Right");
        click("Command1");
        EXPECT_TRUE(control("Command6").isEnabled());
        click("Command6");
    });
    start();
    EXPECT_TRUE(choose.acted());
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_EQ(forms_.loaded<splash>(), nullptr);
    EXPECT_EQ(sounds(), (Names{"ladvance"}));
    EXPECT_TRUE(forms_.loaded<MainFrm>()->isVisible());
    EXPECT_TRUE(holds(settingsFile, "UTPath=C:\\Right"));
    EXPECT_TRUE(holds(settingsFile, "UTSysPath=C:\\Right\\system"));
}

TEST_F(PrefsStart, AGameThatLacksAFolderForcesTheDialogToo) {
    makeGame(world(), "C:\\UT");
    std::filesystem::remove_all(world().at("C:\\UT\\textures"));
    const auto mend = whenPrefsComes([this] {
        EXPECT_TRUE(dialogs().pickers.empty());
        world().makeFolder("C:\\UT\\textures");
        dialogs().pick("C:\\UT");
        click("Command1");
        click("Command5");
    });
    start();
    EXPECT_TRUE(mend.acted());
    EXPECT_TRUE(sounds().empty());
}

TEST_F(PrefsStart, TheForcedDialogCanEndTheWholeProgram) {
    dialogs().pick("");
    dialogs().answer(Answer::Cancel);
    dialogs().answer(Answer::Yes);
    const auto leave = whenPrefsComes([this] { click("CommandX"); });
    start();
    EXPECT_TRUE(leave.acted());
    EXPECT_EQ(dialogs().messages.back(), invalidQuestion);
    EXPECT_TRUE(forms_.ended());
    EXPECT_TRUE(forms_.empty());
    EXPECT_EQ(sounds(), (Names{"nasty"}));
}

TEST_F(PrefsStart, TheForcedDialogStaysOpenUntilTheFolderIsRight) {
    makeGame(world(), "C:\\Right");
    dialogs().pick("");
    dialogs().answer(Answer::Cancel);
    const auto stay = whenPrefsComes([this] {
        for (int i = 0; i < 2; ++i) {
            dialogs().answer(Answer::No);
            click("Command5");
            EXPECT_TRUE(prefsVisible());
        }
        dialogs().pick("C:\\Right");
        click("Command1");
        click("Command5");
    });
    start();
    EXPECT_TRUE(stay.acted());
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_FALSE(forms_.ended());
    EXPECT_EQ(program_.gamePaths.UTPath, "C:\\Right") << "In memory only";
    EXPECT_TRUE(holds(settingsFile, "UTPath=C:\\UT"));
}

TEST_F(PrefsStart, AGivenUpBrowseThatClosesTheDialogComesOnceMoreWhenItIsForced) {
    world().makeFolder("C:\\UT\\system");
    for (int i = 0; i < 2; ++i) {
        dialogs().pick("");
        dialogs().answer(Answer::Cancel);
    }
    start();
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_TRUE(forms_.loaded<MainFrm>()->isVisible());
    EXPECT_TRUE(sounds().empty());
}

TEST_F(PrefsStart, ASettingThatIsNoNumberEndsTheProgramInTheCheck) {
    makeGame(world(), "C:\\UT");
    std::string settings = settingsOfGame;
    settings.replace(settings.find("Sounds=1"), 8, "Sounds=x");
    world().write(settingsFile, settings);
    dialogs().answer(Answer::Ok);
    start();
    EXPECT_EQ(dialogs().messages.back().text, "Run-time error '13':\n\nType mismatch");
    EXPECT_TRUE(forms_.ended());
}

TEST_F(PrefsStart, TheFirstShowingUsesTheInstanceOfTheStartAndTheNextLoadsAnew) {
    makeGame(world(), "C:\\UT");
    start();
    world().write(gameIni, "[URL]\r\nLocalMap=later.unr\r\n");
    Names shown;
    for (const char* item : {"mnuprefs", "mnurprefs"}) {
        const auto look = whenPrefsComes([&] {
            shown.push_back(textOf("Text3"));
            click("Command5");
        });
        useMenu(item);
        EXPECT_TRUE(look.acted()) << item;
        EXPECT_EQ(loaded(), nullptr);
    }
    EXPECT_EQ(shown, (Names{"CityIntro.unr", "later.unr"}));
}

TEST_F(PrefsStart, TheDialogBlocksTheMainWindow) {
    makeGame(world(), "C:\\UT");
    start();
    const auto look = whenPrefsComes([this] {
        EXPECT_EQ(QApplication::activeModalWidget(), loaded());
        click("Command5");
    });
    useMenu("mnuprefs");
    EXPECT_TRUE(look.acted());
}

TEST_F(PrefsStart, TheHiddenDialogGoesWithTheMainWindow) {
    makeGame(world(), "C:\\UT");
    start();
    forms_.unload(forms_.get<MainFrm>());
    EXPECT_TRUE(forms_.empty());
}

}  // namespace
}  // namespace tessaro::test
