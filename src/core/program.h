#pragma once

#include <string>

#include "core/clsINI.h"
#include "platform/files/files.h"
#include "platform/files/filetable.h"
#include "platform/outside/dialogs.h"
#include "platform/outside/events.h"
#include "platform/outside/processes.h"
#include "platform/outside/sounds.h"
#include "platform/profile/profilecalls.h"

namespace tessaro {

/// The game's folders, in the game's form, without a backslash at the end.
struct GamePaths {
    std::string UTPath;
    std::string UTCachePath;
    std::string UTMapPath;
    std::string UTSysPath;
};

/// The program's options. Flags and `WindowSize` are texts as the settings file has them; they are
/// compared as numbers, which raises error 13 for a text that is none.
struct ProgramSettings {
    std::string Sounds;
    std::string AutoSave;
    std::string ShowSplash;
    Int16 TimesUsed;
    std::string Skin;
    std::string ExtractDest;
    std::string DefUser;
    std::string ASCIIFont;
    std::string WindowSize;
};

/// What the program asks of the outside besides files.
struct Outside {
    Dialogs& dialogs;
    tessaro::Sounds& sounds;
    Processes& processes;
    Events& events;
};

/// The values that every tool reads: made once, passed by reference.
class Program {
  public:
    Program(Host& host, DriveMap drives, Outside outside, ProgramFile file);

    Dialogs& dialogs;
    tessaro::Sounds& sounds;
    Processes& processes;
    Events& events;

    ProgramFile file;
    Paths paths;
    Files files;
    FileTable table;
    ProfileCalls profile;

    clsINI ini;  ///< shared by the settings routines
    GamePaths gamePaths;
    ProgramSettings settings;

    std::string SoundBuffer;  ///< bytes of the sound last started
    int SoundResult = 0;
    Int16 LastWindowState;       ///< last state of the main window that was not minimised
    std::string LastFileName;    ///< what GetFileName gave last
    std::string CompressDest;    ///< where a batch's results go, without a
    std::string DecompressDest;  ///< backslash at the end

    /// A form's own instance.
    clsINI makeINI() { return {profile, table, file}; }
    /// The program's settings file, `vornx.ini` in the program's folder.
    std::string settingsFile() const { return file.settingsFile(); }
    /// The gate before every sound. Raises 13 if the setting is no number.
    bool soundsOn() const;
};

}  // namespace tessaro
