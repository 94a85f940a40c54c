#include "servers/servermanager.h"

#include <gmock/gmock.h>

#include <optional>

#include "servers/recordingmainwindow.h"
#include "servers/serverfixture.h"

namespace tessaro::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Input = ScriptedDialogs::Input;
using Names = std::vector<std::string>;

const Message removeQuestion{"Are you sure you want to remove the selected server?",
                             "Remove Server?", Buttons::YesNo, Icon::None};

// A form that saves the list when it closes, as the real one does.
class RecordingView : public ServerManagerView {
  public:
    explicit RecordingView(Names& log) : log_(log) {}

    ServerRecord boxes;
    RecordingMainWindow window;

    ServerRecord entered() override { return boxes; }
    void clearEntered() override { boxes = {}; }
    void closeForm() override { log_.push_back("close"); }
    MainWindow& mainWindow() override {
        log_.push_back("main window");
        return window;
    }

  private:
    Names& log_;
};

class ServerManaging : public ServerFixture {
  protected:
    ServerManaging() {
        world_.processes.child = [this](const std::string&) { log_.push_back("game"); };
        disk_.write(systemFolder + R"(\UnrealTournament.exe)", "MZ");
    }

    void list(const std::vector<ServerRecord>& servers) {
        for (const ServerRecord& server : servers) addServer(manager_.ListView1, server);
    }
    void listThree() {
        list({{"A", "1.1.1.1", "1111"}, {"B", "2.2.2.2", "2222"}, {"C", "3.3.3.3", "3333"}});
    }
    Names rows() const { return linesOf(manager_.ListView1); }
    void pick(std::size_t row) { manager_.ListView1.pick(row); }
    void enter(const ServerRecord& server) {
        view_.boxes = server;
        manager_.add();
    }
    void changePortTo(const std::string& port) {
        world_.dialogs.type(port);
        manager_.changePort();
    }

    std::vector<Message>& messages_ = world_.dialogs.messages;
    Names log_;
    RecordingView view_{log_};
    ServerManager manager_{program_, view_};
};

TEST_F(ServerManaging, PlayWithoutAHighlightedServerSaysSo) {
    listThree();
    world_.dialogs.answer(Answer::Ok);
    manager_.play();
    EXPECT_THAT(messages_, ElementsAre(Message{"Select an Ip to Play on", "Ovrin Tessaro",
                                               Buttons::Ok, Icon::None}));
    EXPECT_THAT(log_, IsEmpty());
}

TEST_F(ServerManaging, PlayNamesTheServerAndAsks) {
    listThree();
    pick(2);
    world_.dialogs.answer(Answer::No);
    manager_.play();
    EXPECT_THAT(messages_,
                ElementsAre(Message{"Start Game on Server: B\r\nIP: 2.2.2.2 On Port: 2222",
                                    "Begin Open Location?", Buttons::YesNo, Icon::Question}));
    EXPECT_THAT(log_, IsEmpty());
}

TEST_F(ServerManaging, PlayClosesTheFormBeforeTheGameStarts) {
    listThree();
    pick(2);
    world_.dialogs.answer(Answer::Yes);
    manager_.play();
    EXPECT_THAT(log_, ElementsAre("close", "main window", "game"));
    EXPECT_EQ(world_.processes.runs.at(0).commandLine,
              R"(C:\UT\System\unrealtournament.exe 2.2.2.2?port=2222)");
}

TEST_F(ServerManaging, PlayWithoutTheGameClosesTheFormAndThenTellsTheUser) {
    program_.gamePaths.UTSysPath = R"(C:\Nowhere)";
    listThree();
    pick(1);
    world_.dialogs.answer(Answer::Yes);
    world_.dialogs.answer(Answer::Ok);
    Names before;
    world_.dialogs.whileOpen = [&] { before = log_; };
    manager_.play();
    EXPECT_THAT(before, ElementsAre("close", "main window"));
    EXPECT_EQ(messages_.at(1).title, "Error Starting: UnrealTournament");
}

TEST_F(ServerManaging, ADoubleClickPlaysOnAHighlightedServerOnly) {
    listThree();
    manager_.playIfSelected();
    EXPECT_THAT(messages_, IsEmpty());
    pick(3);
    world_.dialogs.answer(Answer::No);
    manager_.playIfSelected();
    EXPECT_EQ(messages_.at(0).text, "Start Game on Server: C\r\nIP: 3.3.3.3 On Port: 3333");
}

TEST_F(ServerManaging, AddPutsAServerAtTheEndAndEmptiesTheBoxes) {
    listThree();
    enter({"New", "4.4.4.4", "4444"});
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "B\\2.2.2.2\\2222", "C\\3.3.3.3\\3333",
                                    "New\\4.4.4.4\\4444"));
    EXPECT_EQ(view_.boxes, ServerRecord());
}

TEST_F(ServerManaging, AddWithOneBoxEmptyLeavesEverythingAsItIs) {
    for (const ServerRecord& server :
         {ServerRecord{"", "4.4.4.4", "4444"}, {"New", "", "4444"}, {"New", "4.4.4.4", ""}, {}}) {
        enter(server);
        EXPECT_EQ(view_.boxes, server);
        EXPECT_THAT(rows(), IsEmpty());
    }
}

TEST_F(ServerManaging, AddTakesAServerThatIsThereAlready) {
    enter({"A", "1.1.1.1", "1111"});
    enter({"A", "1.1.1.1", "1111"});
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "A\\1.1.1.1\\1111"));
}

TEST_F(ServerManaging, AddDoesNotLookAtTheCharacters) {
    enter({" ", "not an address", "abcd"});
    EXPECT_THAT(rows(), ElementsAre(" \\not an address\\abcd"));
}

TEST_F(ServerManaging, RemoveAsksAndTakesTheSelectedRow) {
    listThree();
    pick(2);
    world_.dialogs.answer(Answer::Yes);
    manager_.remove();
    EXPECT_THAT(messages_, ElementsAre(removeQuestion));
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerManaging, RemoveLeavesTheRowAtANo) {
    listThree();
    pick(2);
    world_.dialogs.answer(Answer::No);
    manager_.remove();
    EXPECT_EQ(rows().size(), 3u);
}

TEST_F(ServerManaging, RemoveOnAnEmptyListShowsNothing) {
    manager_.remove();
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(ServerManaging, RemoveTakesTheSelectedItemAlsoIfItIsNotHighlighted) {
    listThree();
    world_.dialogs.answer(Answer::Yes);
    manager_.remove();
    EXPECT_THAT(rows(), ElementsAre("B\\2.2.2.2\\2222", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerManaging, TheFirstClickOnAColumnSortsDescendingAndTheSecondAscending) {
    list({{"beta", "1", "1"}, {"Gamma", "2", "2"}, {"ALPHA", "3", "3"}});
    manager_.sortBy(1);
    EXPECT_THAT(rows(), ElementsAre("Gamma\\2\\2", "beta\\1\\1", "ALPHA\\3\\3"));
    manager_.sortBy(1);
    EXPECT_THAT(rows(), ElementsAre("ALPHA\\3\\3", "beta\\1\\1", "Gamma\\2\\2"));
}

TEST_F(ServerManaging, AClickOnAnotherColumnTurnsTheDirectionToo) {
    list({{"A", "2", "1111"}, {"B", "1", "2222"}, {"C", "3", "3333"}});
    manager_.sortBy(1);
    manager_.sortBy(2);
    EXPECT_THAT(rows(), ElementsAre("B\\1\\2222", "A\\2\\1111", "C\\3\\3333"));
    manager_.sortBy(3);
    EXPECT_THAT(rows(), ElementsAre("C\\3\\3333", "B\\1\\2222", "A\\2\\1111"));
}

TEST_F(ServerManaging, PortsSortAsText) {
    list({{"A", "1", "900"}, {"B", "2", "8000"}, {"C", "3", "7777"}});
    manager_.sortBy(3);
    manager_.sortBy(3);
    EXPECT_THAT(rows(), ElementsAre("C\\3\\7777", "B\\2\\8000", "A\\1\\900"));
}

TEST_F(ServerManaging, ASortedListTakesNewServersAtItsEndAndIsSavedAsItStands) {
    list({{"A", "1", "1111"}, {"B", "2", "2222"}});
    manager_.sortBy(1);
    enter({"M", "3", "3333"});
    enter({"Z", "4", "4444"});
    SaveServerList(program_, manager_.ListView1);
    EXPECT_EQ(disk_.read(serverFile), "B\\2\\2222\r\nA\\1\\1111\r\nM\\3\\3333\r\nZ\\4\\4444\r\n");
}

TEST_F(ServerManaging, ImportedServersGoToTheEndOfASortedList) {
    list({{"A", "1", "1111"}, {"B", "2", "2222"}});
    manager_.sortBy(1);
    disk_.write(gameIni, favorites("2", {R"(M\3\3333\True)", R"(Z\4\4444\True)"}));
    manager_.importFavorites();
    EXPECT_THAT(rows(), ElementsAre("B\\2\\2222", "A\\1\\1111", "M\\3\\3333", "Z\\4\\4444"));
}

TEST_F(ServerManaging, ThePickedServerStaysPickedInASort) {
    listThree();
    pick(1);
    manager_.sortBy(1);
    EXPECT_EQ(manager_.ListView1.selectedItem(), 3u);
}

TEST_F(ServerManaging, ARenameOffersTheNameAndTakesTheAnswer) {
    listThree();
    pick(2);
    world_.dialogs.type("Better");
    manager_.changeName();
    EXPECT_THAT(world_.dialogs.inputs,
                ElementsAre(Input{"Select New Name for Server", "Rename Server", "B"}));
    EXPECT_THAT(rows(),
                ElementsAre("A\\1.1.1.1\\1111", "Better\\2.2.2.2\\2222", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerManaging, AnAddressOfAnyLengthIsTaken) {
    listThree();
    pick(2);
    world_.dialogs.type("a.very.long.name.example.org");
    manager_.changeIP();
    EXPECT_THAT(world_.dialogs.inputs, ElementsAre(Input{"Select New IP Address for Server:\r\nB",
                                                         "Change IP Address", "2.2.2.2"}));
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "B\\a.very.long.name.example.org\\2222",
                                    "C\\3.3.3.3\\3333"));
}

TEST_F(ServerManaging, TheBoxForThePortBearsTheTitleOfTheOneForTheAddress) {
    listThree();
    pick(2);
    changePortTo("8888");
    EXPECT_THAT(world_.dialogs.inputs, ElementsAre(Input{"Select New Port for Server:\r\nB",
                                                         "Change IP Address", "2222"}));
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "B\\2.2.2.2\\8888", "C\\3.3.3.3\\3333"));
}

TEST_F(ServerManaging, APortOfOtherThanFourCharactersIsDroppedWithoutAWord) {
    listThree();
    pick(2);
    for (const char* port : {"80", "123", "27960", "\u00fc\u00fc"}) {
        changePortTo(port);
        EXPECT_EQ(serverAt(manager_.ListView1, 2).Port, "2222") << port;
    }
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(ServerManaging, FourCharactersOfAnyKindAreAPort) {
    listThree();
    pick(2);
    for (const char* port : {"abcd", "    ", "\u00fc\u00fc\u00fc\u00fc"}) {
        changePortTo(port);
        EXPECT_EQ(serverAt(manager_.ListView1, 2).Port, port);
    }
}

TEST_F(ServerManaging, ACancelledInputBoxChangesNothing) {
    listThree();
    const Names before = rows();
    for (const auto change :
         {&ServerManager::changeName, &ServerManager::changeIP, &ServerManager::changePort}) {
        world_.dialogs.type("");
        (manager_.*change)();
        EXPECT_EQ(rows(), before);
    }
    EXPECT_EQ(world_.dialogs.inputs.size(), 3u);
}

TEST_F(ServerManaging, AServerWithoutSubItemsCanBeGivenThem) {
    manager_.ListView1.add("only a name");
    world_.dialogs.type("4.4.4.4");
    manager_.changeIP();
    changePortTo("4444");
    EXPECT_THAT(rows(), ElementsAre("only a name\\4.4.4.4\\4444"));
}

TEST_F(ServerManaging, TheEditCommandsFailOnAnEmptyList) {
    for (const auto change :
         {&ServerManager::changeName, &ServerManager::changeIP, &ServerManager::changePort})
        EXPECT_EQ(errorOf([&] { (manager_.*change)(); }), errors::ObjectNotSet);
    EXPECT_THAT(world_.dialogs.inputs, IsEmpty());
}

// An item of the popup as "name: caption".
std::string told(const PopupItem& item) {
    return std::string(item.name) + ": " + std::string(item.caption);
}

TEST_F(ServerManaging, ThePopupsItemsStandInOrder) {
    Names items;
    for (const PopupItem& item : popupItems) items.push_back(told(item));
    EXPECT_THAT(
        items,
        ElementsAre("mnuplaynow: &Play on this Server", "mnuhyph0: ", "mnudelip: &Remove Server",
                    "mnuhyph1: ", "mnuservername: Change Server Name",
                    "mnuchangeip: C&hange IP Address", "mnuchangeport: Change &Port"));
}

class PopupCommands : public ServerManaging {
  protected:
    void choose(const std::string& name) {
        for (const PopupItem& item : popupItems)
            if (item.name == name) (manager_.*item.command)();
    }
};

TEST_F(PopupCommands, PlayOnAnEmptyListSaysWhatTheButtonSays) {
    world_.dialogs.answer(Answer::Ok);
    choose("mnuplaynow");
    EXPECT_EQ(messages_.at(0).text, "Select an Ip to Play on");
}

TEST_F(PopupCommands, RemoveOnAnEmptyListShowsNothing) {
    choose("mnudelip");
    EXPECT_THAT(messages_, IsEmpty());
}

TEST_F(PopupCommands, EachItemDoesWhatItSays) {
    listThree();
    pick(2);
    world_.dialogs.type("Name");
    choose("mnuservername");
    world_.dialogs.type("9.9.9.9");
    choose("mnuchangeip");
    world_.dialogs.type("9999");
    choose("mnuchangeport");
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "Name\\9.9.9.9\\9999", "C\\3.3.3.3\\3333"));
    world_.dialogs.answer(Answer::No);
    choose("mnuplaynow");
    EXPECT_EQ(messages_.at(0).title, "Begin Open Location?");
    world_.dialogs.answer(Answer::Yes);
    choose("mnudelip");
    EXPECT_THAT(rows(), ElementsAre("A\\1.1.1.1\\1111", "C\\3.3.3.3\\3333"));
}

}  // namespace
}  // namespace tessaro::test
