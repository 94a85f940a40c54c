// Forms on a game that was built for Linux.

#include <QLabel>
#include <QLineEdit>

#include "cache/mapext.h"
#include "kit/controls/folderlist.h"
#include "kit/look/text.h"
#include "prefs/Prefs.h"
#include "support/forms/gameforms.h"
#include "support/nativegame.h"

namespace tessaro::test {
namespace {

class NativeForms : public FormsTest {
  protected:
    NativeForms() {
        const std::string root = game_.path();
        program_.gamePaths = {root, root + "\\cache", root + "\\maps", root + "\\system"};
        auto& settings = program_.settings;
        settings.Sounds = settings.AutoSave = settings.ShowSplash = settings.WindowSize = "0";
        world_.world.write("C:\\Tessaro\\vornx.ini", "[UTPaths]\r\nUTPath=" + root + "\r\n");
        NativeGameFolder::write(game_.written() / "Cache" / "cache.ini", "[Cache]\n");
        NativeGameFolder::write(game_.programs() / "UnrealTournament.ini",
                                "[URL]\nLocalMap=Entry.unr\n");
        NativeGameFolder::write(game_.programs() / "User.ini", "[DefaultPlayer]\nName=Me\n");
    }

    NativeGameFolder game_{world_.world};
};

// The names that a folder list shows below the open folder.
std::vector<std::string> namesIn(const FolderList& list) {
    std::vector<std::string> names;
    const QTreeWidgetItem* open = list.currentItem();
    for (int i = 0; i < open->childCount(); ++i) names.push_back(fromQt(open->child(i)->text(0)));
    return names;
}

TEST_F(NativeForms, TheWizardOpensOnTheCacheAndReadsAsTheGamesFolder) {
    std::filesystem::create_directories(game_.written() / "Cache" / "Above");
    std::filesystem::create_directories(game_.root() / "Cache" / "Below");
    guarded(forms_, [this] { forms_.show<mapext>(); });
    auto& wizard = forms_.get<mapext>();
    const auto& list = control<FolderList>(wizard, "Dir1");
    EXPECT_EQ(list.path(), game_.path("Cache"));
    EXPECT_EQ(namesIn(list), (std::vector<std::string>{"Above", "Below"}));
    EXPECT_EQ(fromQt(control<QLineEdit>(wizard, "Text1").text()), game_.path("Cache"));
    EXPECT_EQ(fromQt(control<QLabel>(wizard, "validdir").text()), "Valid Directory!");
}

TEST_F(NativeForms, TheWizardOpensOnACacheThatOnlyTheHomeHas) {
    std::filesystem::remove(game_.root() / "Cache");
    guarded(forms_, [this] { forms_.show<mapext>(); });
    auto& wizard = forms_.get<mapext>();
    EXPECT_EQ(control<FolderList>(wizard, "Dir1").path(), game_.path("Cache"));
    EXPECT_TRUE(control<QWidget>(wizard, "next").isEnabled());
}

TEST_F(NativeForms, AFolderOfTheHomeIsEnteredByItsNameInTheGame) {
    std::filesystem::create_directories(game_.written() / "System" / "Screenshots");
    FolderList list;
    list.use(program_.files);
    list.setPath(game_.path("system\\screenshots"));
    EXPECT_EQ(list.path(), game_.path("System\\Screenshots"));
    list.setPath(game_.path("system"));
    EXPECT_EQ(list.path(), game_.path("System"));
    EXPECT_EQ(namesIn(list), std::vector<std::string>{"Screenshots"});
}

TEST_F(NativeForms, ThePreferencesAreValidAndShowWhatTheGameReads) {
    auto& prefs = forms_.get<Prefs>();
    EXPECT_TRUE(control<QWidget>(prefs, "Command6").isEnabled());
    EXPECT_EQ(fromQt(control<QLineEdit>(prefs, "Text3").text()), "Entry.unr");
}

}  // namespace
}  // namespace tessaro::test
