// The servers and the editor on the sample game as it lies on Linux.

#include "editor/editorfixture.h"
#include "native/nativesampletest.h"
#include "servers/launch.h"
#include "servers/recordingmainwindow.h"
#include "servers/serverstore.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class NativeServers : public NativeSampleTest {
  protected:
    ListItems list = makeServerList();
    RecordingMainWindow window;
};

TEST_F(NativeServers, TheBrowsersFavouritesAreImported) {
    const std::string before = read(programs() / "UnrealTournament.ini");
    ImportFavorites(program, list);
    EXPECT_EQ(list.count(), 9U);
    EXPECT_EQ(read(programs() / "UnrealTournament.ini"), before);
    EXPECT_THAT(TestWorld::namesIn(written() / "System"),
                ElementsAre("UnrealTournament.log", "ucc.log"));
}

TEST_F(NativeServers, ThoseOfTheUpperIniAreImportedWhereThereAreTwo) {
    write(written() / "System" / "UnrealTournament.ini",
          "\xEF\xBB\xBF[UBrowser.UBrowserFavoritesFact]\nFavoriteCount=1\n"
          "Favorites[0]=M\xC3\xBChle\\192.0.2.1\\7778\\True\n");
    ImportFavorites(program, list);
    ASSERT_EQ(list.count(), 1U);
    EXPECT_EQ(serverAt(list, 1), (ServerRecord{"Mühle", "192.0.2.1", "7778"}));
}

TEST_F(NativeServers, TheGameForLinuxIsStartedOnOne) {
    LaunchOnServer(program, window, "192.0.2.7", "7777");
    EXPECT_EQ(
        read(written() / "System" / "UnrealTournament.cmdline"),
        (programs() / ("ut-bin" + nativeNames().suffix)).native() + "\n192.0.2.7?port=7777\n");
    EXPECT_THAT(world.dialogs.messages, IsEmpty());
}

TEST_F(NativeServers, AGameWithoutItsProgramIsReported) {
    fs::remove(programs() / ("ut-bin" + nativeNames().suffix));
    world.dialogs.answer(Answer::Ok);
    LaunchOnServer(program, window, "192.0.2.7", "7777");
    EXPECT_THAT(world.dialogs.messages, SizeIs(1));
}

class NativeEditor : public NativeSampleTest {
  protected:
    NativeEditor() {
        view.box.changed = [this](auto... lines) { editor.textChanged(lines...); };
    }

    RecordingEditorView view;
    EditorMemory memory;
    Editor editor{program, view, memory};
};

TEST_F(NativeEditor, EditsTheFilesThatTheGameReads) {
    const std::string before = read(programs() / "User.ini");
    editor.loadUserIni();
    view.box.edit(0, 1, {u"[Changed]"});
    world.dialogs.answer(Answer::Yes);
    editor.loadCacheIni();
    EXPECT_TRUE(read(programs() / "User.ini") ==
                "[Changed]" + before.substr(before.find('\n')) + "\r\n");
    EXPECT_EQ(view.box.lines.front(), u"[Cache]");
    EXPECT_EQ(view.box.lines.size(), layout().cacheLines.size() + 2);
    editor.loadUnrealTournamentIni();
    EXPECT_EQ(view.openedini, path("system\\unrealtournament.ini"));
    EXPECT_GT(view.box.lines.size(), 1000U);
}

}  // namespace
}  // namespace tessaro::test
