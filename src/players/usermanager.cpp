#include "players/usermanager.h"

#include "compress/vornxshell.h"
#include "core/VORNX.h"
#include "core/mainwindow.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"

namespace tessaro {
namespace {

bool confirms(Program& program, const std::string& text, const std::string& title) {
    return program.dialogs.message({text, title, Buttons::YesNo, Icon::Question}) == Answer::Yes;
}

}  // namespace

UserManager::UserManager(Program& program, UserMan& userMan, UsersView& view)
    : program_(program), userMan_(userMan), view_(view), INI(program.makeINI()) {}

void UserManager::open() {
    INI.inifile(userMan_.userIni());
    program_.settings.DefUser = INI.getKeyValue("Name", "Player", "DefaultPlayer");
    view_.showCurrentName(program_.settings.DefUser);
    if (DirExists(program_, userMan_.copiesFolder() + "\\") != Yes)
        program_.files.makeFolder(userMan_.copiesFolder());
    if (program_.files.firstMatch(userMan_.listFile(), attributes::Normal).empty())
        program_.files.touch(userMan_.listFile());
    userMan_.LoadPlayerList(view_.UserTable(), userMan_.listFile());
}

void UserManager::save() {
    userMan_.SavePlayerList(view_.UserTable());
}

// Says so of a player who was in the archive before, too.
void UserManager::saveCurrent() {
    userMan_.OfferSaveCurrentPlayer(view_);
    if (UserMan::IsNewPlayerName(view_) == Yes) return;
    program_.dialogs.message(
        {"The Current User has been saved", "User Exists", Buttons::Ok, Icon::Information});
}

bool UserManager::anyHighlighted() {
    if (AnyListViewItemSelected(view_.UserTable()) == Yes) return true;
    program_.dialogs.message({"No User Selected. Highlight any saved user name and try again",
                              "No User Selected", Buttons::Ok, Icon::None});
    return false;
}

void UserManager::setAsCurrent() {
    const std::string name = playerAt(view_.UserTable(), selectedPlayer(view_.UserTable())).name;
    if (!confirms(program_, "Set " + name + " as the Current User?", "UT Player Set")) return;
    if (name == view_.currentName()) {
        program_.dialogs.message({"That User Is already Set as current.", "Cannot Set User",
                                  Buttons::Ok, Icon::Information});
        return;
    }
    view_.enableSwap(false);
    // Where no row is highlighted the button stays out of reach until the form is opened again.
    if (anyHighlighted()) swap();
}

// The row is looked up anew: where the offer is taken, the rows are rebuilt, and the first of them
// is swapped in and not the one that was asked about.
void UserManager::swap() {
    userMan_.OfferSaveCurrentPlayer(view_);
    view_.setBusyPointer(true);
    userMan_.LoadSelectedPlayer(view_);
    view_.setBusyPointer(false);
}

void UserManager::deleteSelected() {
    if (!anyHighlighted()) return;
    // Text and title stand this way round.
    if (!confirms(program_, "Remove Selected Name?", "Do you want to delete this player?")) return;
    removeSelected();
}

void UserManager::removeSelected() {
    ListItems& UserTable = view_.UserTable();
    attempt(
        [&] { userMan_.deleteCopy(playerAt(UserTable, selectedPlayer(UserTable)).BackupFile); });
    attempt([&] { UserTable.remove(selectedPlayer(UserTable)); });
    attempt([&] { userMan_.SavePlayerList(UserTable); });
}

void UserManager::changeName() {
    if (view_.UserTable().count() > 0) view_.editName();
}

void UserManager::play() {
    const std::string game = program_.gamePaths.UTSysPath + "\\unrealtournament.exe";
    view_.closeForm();
    if (FileExists(program_, game) == Yes) {
        view_.setMainState(windowstate::Minimised);
        RunVisible(program_, game);
        view_.setMainState(toInt16(program_.settings.WindowSize));
    }
    if (!program_.files.firstMatch(game, attributes::Normal).empty()) return;
    program_.dialogs.message(
        {"UnrealTournament executable not found. Please check all paths and try again",
         "Error Starting: UnrealTournament", Buttons::Ok, Icon::Stop});
}

}  // namespace tessaro
