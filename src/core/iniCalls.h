#pragma once
// iniCalls: moves the program's options between the settings file, the record in memory and the
// preferences dialog.

#include "core/program.h"

namespace tessaro {

/// The controls of the preferences dialog that hold options. A check box's value is 0, 1 or 2.
struct PrefsControls {
    std::string Text1{};  ///< game folder
    int Check1 = 0;       ///< sounds
    int Check2 = 0;       ///< save at exit
    int Check3 = 0;       ///< splash
    std::string Text5{};  ///< destination of the extractor
    std::string Text6{};  ///< player of the User Manager
    std::string Text7{};  ///< font of the character chart
    bool Option3 = false;
    bool Option4 = false;
    bool Option5 = false;  ///< skins 0, 1, 2
};

/// Settings file to record. Counts this run and writes the count back at once. What the file lacks
/// is filled in. Raises 13 or 6 for a count that is no 16-bit number, and what the file raises.
void LoadSettings(Program& program);
/// Record to settings file, all but the run count.
void SaveSettings(Program& program);
/// Record to dialog. Raises 13 for a `Skin` that is no number.
void SettingsToPrefs(const Program& program, PrefsControls& controls);
/// Dialog to record; the three inner folders follow the game folder.
void PrefsToSettings(Program& program, const PrefsControls& controls);

}  // namespace tessaro
