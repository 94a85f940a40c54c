#pragma once
// iniCalls: moves the program's options between the settings file, the record in memory and the
// preferences dialog.

#include <string>
#include <string_view>

#include "core/program.h"

namespace tessaro {

/// Where the settings file keeps the extractor's destination, and what it is at first.
namespace extractdestination {
inline constexpr std::string_view section = "Common";
inline constexpr std::string_view key = "VORNX";
inline constexpr std::string_view firstFolder = "C:\\UTMaps";
}  // namespace extractdestination

/// What the preferences dialog shows of the options, each with the control that shows it. A check
/// box's value is 0, 1 or 2.
struct PrefsOptions {
    std::string gameFolder{};   ///< `Text1`
    int sounds = 0;             ///< `Check1`
    int autoSave = 0;           ///< `Check2`, save at exit
    int showSplash = 0;         ///< `Check3`
    std::string extractDest{};  ///< `Text5`, hidden
    std::string defUser{};      ///< `Text6`, hidden: player of the User Manager
    std::string asciiFont{};    ///< `Text7`, hidden: font of the character chart
    bool firstSkin = false;     ///< `Option3`, `Skin` 0
    bool secondSkin = false;    ///< `Option4`, `Skin` 1
    bool thirdSkin = false;     ///< `Option5`, `Skin` 2
};

/// Settings file to record. Counts this run and writes the count back at once. What the file lacks
/// is filled in. Raises 13 or 6 for a count that is no 16-bit number, and what the file raises.
void LoadSettings(Program& program);
/// Record to settings file, all but the run count.
void SaveSettings(Program& program);
/// Record to dialog. Raises 13 for a flag that is no number.
void SettingsToPrefs(const Program& program, PrefsOptions& controls);
/// Dialog to record; the three inner folders follow the game folder.
void PrefsToSettings(Program& program, const PrefsOptions& controls);

}  // namespace tessaro
