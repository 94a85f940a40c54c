#pragma once
// UserMan: the archive of players. A player is a whole copy of the game's `user.ini`; a list beside
// the copies tells what they hold:
//
//     program folder\playerlist.lst           a line for each player, see playerrecord.h
//     program folder\users\userini0.bak       the copies, by the lowest number that is free

#include <string>

#include "core/program.h"
#include "players/playerrecord.h"

namespace tessaro {

/// What the archive's routines ask of the User Manager. Its rows are the archive while it is open;
/// the list file is what they are loaded from and saved to.
class ArchiveView {
  public:
    virtual ~ArchiveView() = default;
    virtual ListItems& UserTable() = 0;
    /// The player that the game had when it was last looked at: the text of `Text1`.
    virtual std::string currentName() = 0;
    virtual void showCurrentName(const std::string& name) = 0;
    /// Whether "Set &Player as Current" can be pressed.
    virtual void enableSwap(bool enabled) = 0;
};

/// The archive's routines. Made once: the path that was chosen last outlives every form.
class UserMan {
  public:
    explicit UserMan(Program& program) : program_(program) {}

    /// Adds a row for each line whose copy is there, then serves pending events. A field that a
    /// line lacks is the one of the line before. Never raises.
    void LoadPlayerList(ListItems& UserTable, const std::string& listFile);
    /// Whether no row bears the current name, letter for letter.
    static YesNo IsNewPlayerName(ArchiveView& users);
    /// Asks whether to archive a current player whose name has no row. A name that has one is left
    /// alone: its copy is as old as it was.
    void OfferSaveCurrentPlayer(ArchiveView& users);
    /// Files `user.ini` away and loads the rows anew. Its line is on the disk before its copy is.
    /// Raises what the files raise.
    void ArchiveCurrentPlayer(ArchiveView& users);
    /// Sets `LastBackupPath` to the lowest number that no copy bears. Raises 6 past 32767.
    void NextBackupName();
    /// Copies `user.ini` and waits for the copy to appear, however long that takes. Raises what
    /// copying raises.
    void CopyUserIniTo(const std::string& destination);
    /// Rows to list file. A team that is none of the five is written as none. Raises what opening
    /// the list raises; later failures are ignored, and leave the list as it was.
    void SavePlayerList(ListItems& UserTable);
    /// Puts the selected row's copy in the place of `user.ini`, of which nothing is kept, and
    /// waits until the game's file bears another name than the current one, however long that
    /// takes. Raises what deleting and copying raise, and 91 for an empty list.
    void LoadSelectedPlayer(ArchiveView& users);

    /// Raises what deleting raises: 53 for a copy that is not there, and for a text that names more
    /// than one file.
    void deleteCopy(const std::string& BackupFile);

    const std::string& LastBackupPath() const { return LastBackupPath_; }

    std::string userIni() const { return program_.gamePaths.UTSysPath + "\\user.ini"; }
    std::string listFile() const { return program_.file.folder + "\\playerlist.lst"; }
    std::string copiesFolder() const { return program_.file.folder + "\\users"; }
    std::string copyPath(const std::string& BackupFile) const {
        return copiesFolder() + "\\" + BackupFile;
    }

  private:
    void appendCurrentPlayer(const std::string& name);
    bool isThere(const std::string& file) const;
    void swapIn(ArchiveView& users, const std::string& copy);
    void awaitNewName(ArchiveView& users);

    Program& program_;
    std::string LastBackupPath_;
};

}  // namespace tessaro
