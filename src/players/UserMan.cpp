#include "players/UserMan.h"

#include <string_view>

#include "core/VORNX.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "players/copies.h"

namespace tessaro {
namespace {

// Not 1, which the class for profile files takes while the list is open.
constexpr int listNumber = 2;

constexpr std::string_view playerSection = "DefaultPlayer";

constexpr double secondsBeforeSwap = 0.1;
constexpr double secondsForAFile = 0.2;  // to go or to come

}  // namespace

bool UserMan::isThere(const std::string& file) const {
    return FileExists(program_, file) == Yes;
}

void UserMan::LoadPlayerList(ListItems& UserTable, const std::string& listFile) {
    FileTable& table = program_.table;
    if (attempt([&] { table.openInput(listNumber, listFile); })) {
        const Copies copies(program_, copiesFolder());
        PlayerRecord fields;  // what a line lacks is still there from the line before
        while (!table.endOfFile(listNumber)) {
            readPlayerLine(table.lineInput(listNumber), fields);
            // A player whose copy has gone is passed over, and forgotten with the next save.
            if (!copies.has(fields.BackupFile)) continue;
            PlayerRecord record = fields;
            record.UTTeam = TeamName(fields.UTTeam);
            addPlayer(UserTable, std::move(record));
        }
        table.close(listNumber);
    }
    program_.events.pump();
}

YesNo UserMan::IsNewPlayerName(ArchiveView& users) {
    const ListItems& UserTable = users.UserTable();
    const std::string name = users.currentName();
    YesNo isNew = Yes;
    for (std::size_t i = 1; i <= UserTable.count(); ++i) {
        if (UserTable.item(i).text == name) isNew = No;
    }
    return isNew;
}

void UserMan::OfferSaveCurrentPlayer(ArchiveView& users) {
    if (IsNewPlayerName(users) != Yes) return;
    const Message question{"Save Info on " + users.currentName() + " ?", "Save New User?",
                           Buttons::YesNo, Icon::Question};
    if (program_.dialogs.message(question) != Answer::Yes) return;
    ArchiveCurrentPlayer(users);
    SavePlayerList(users.UserTable());
}

void UserMan::ArchiveCurrentPlayer(ArchiveView& users) {
    if (IsNewPlayerName(users) != Yes) {
        // Both answers mean the same.
        program_.dialogs.message(
            {"Player Name Already Exists, Please remove this user before adding again.",
             "Existing Player Found", Buttons::YesNo, Icon::Question});
        return;
    }
    program_.ini.inifile(userIni());
    NextBackupName();
    appendCurrentPlayer(users.currentName());
    CopyUserIniTo(LastBackupPath_);
    users.UserTable().clear();
    LoadPlayerList(users.UserTable(), listFile());
}

// Reading writes the defaults of missing keys into the game's file, so that the copy has them.
void UserMan::appendCurrentPlayer(const std::string& name) {
    clsINI& INI = program_.ini;
    program_.table.openAppend(listNumber, listFile());
    PlayerRecord record;
    record.name = name;
    record.UTClass = INI.getKeyValue("Class", "BotPack.Tmale1", playerSection);
    record.UTTeam = INI.getKeyValue("team", "0", playerSection);
    record.UTSkin = INI.getKeyValue("skin", "CommandoSkins.cmdo", playerSection);
    record.UTFace = INI.getKeyValue("Face", "CommandoSkins.Blake", playerSection);
    record.UTVoice = INI.getKeyValue("Voice", "BotPack.VoiceMaleOne", playerSection);
    record.BackupFile = FileNamePart(LastBackupPath_);
    program_.table.printLine(listNumber, playerLine(record));
    program_.table.close(listNumber);
}

void UserMan::NextBackupName() {
    LastBackupPath_ = copyPath(copyName(freeCopyNumber(program_, copiesFolder())));
}

void UserMan::CopyUserIniTo(const std::string& destination) {
    program_.files.copyFile(userIni(), destination);
    waitUntil(program_.events, [&] { return isThere(destination); });
}

void UserMan::SavePlayerList(ListItems& UserTable) {
    FileTable& table = program_.table;
    program_.ini.inifile(userIni());
    table.openOutput(listNumber, listFile());
    for (std::size_t i = 1; i <= UserTable.count(); ++i) {
        PlayerRecord record = playerAt(UserTable, i);
        record.UTTeam = teamCode(record.UTTeam);
        record.BackupFile = FileNamePart(record.BackupFile);
        table.printLine(listNumber, playerLine(record));
    }
    // Failures are ignored from the first row on. What closing cannot write leaves the old list.
    if (UserTable.count() == 0) return table.close(listNumber);
    attempt([&] { table.close(listNumber); });
}

void UserMan::LoadSelectedPlayer(ArchiveView& users) {
    users.enableSwap(false);
    const std::size_t row = selectedPlayer(users.UserTable());
    const std::string BackupFile = playerAt(users.UserTable(), row).BackupFile;
    if (namesOneFile(BackupFile) && isThere(copyPath(BackupFile))) {
        swapIn(users, copyPath(BackupFile));
    } else {
        program_.dialogs.message(
            {"Backupfile not found", "Cannot Load Player", Buttons::Ok, Icon::Stop});
        users.UserTable().remove(row);
    }
    users.enableSwap(true);
}

// The game's file goes before the copy comes, so a copy that cannot be made leaves none.
void UserMan::swapIn(ArchiveView& users, const std::string& copy) {
    Pause(program_.events, secondsBeforeSwap);
    program_.events.pump();
    if (isThere(userIni())) program_.files.deleteFiles(userIni());
    pauseUntil(program_.events, secondsForAFile, [&] { return !isThere(userIni()); });
    program_.files.copyFile(copy, userIni());
    pauseUntil(program_.events, secondsForAFile, [&] { return isThere(userIni()); });
    awaitNewName(users);
}

// Never ends if the copy bears the name of the player before it.
void UserMan::awaitNewName(ArchiveView& users) {
    std::string& name = program_.settings.DefUser;
    program_.ini.inifile(userIni());
    waitUntil(program_.events, [&] {
        name = program_.ini.getKeyValue("Name", "Player", playerSection);
        return name != users.currentName();
    });
    users.showCurrentName(name);
}

void UserMan::deleteCopy(const std::string& BackupFile) {
    if (!namesOneFile(BackupFile)) throw RunTimeError(errors::FileNotFound, BackupFile);
    program_.files.deleteFiles(copyPath(BackupFile));
}

}  // namespace tessaro
