#include "core/iniCalls.h"

#include <string>
#include <string_view>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"

namespace tessaro {
namespace {

// One option of the settings file that is kept as text.
struct TextOption {
    std::string_view section;
    std::string_view key;
    std::string_view defaultText;
    std::string& (*field)(Program&);
};

template <std::string GamePaths::*Field>
std::string& pathField(Program& program) {
    return program.gamePaths.*Field;
}

template <std::string ProgramSettings::*Field>
std::string& settingField(Program& program) {
    return program.settings.*Field;
}

// In the order of the file. The run count, which is a number and is written at load only, stands
// between the two tables.
constexpr TextOption beforeRunCount[] = {
    {"UTPaths", "UTPath", "C:\\UnrealTournament", pathField<&GamePaths::UTPath>},
    {"UTPaths", "UTCachePath", "C:\\UnrealTournament\\Cache", pathField<&GamePaths::UTCachePath>},
    {"UTPaths", "UTMapPath", "C:\\UnrealTournament\\Maps", pathField<&GamePaths::UTMapPath>},
    {"UTPaths", "UTSysPath", "C:\\UnrealTournament\\System", pathField<&GamePaths::UTSysPath>},
    {"Misc", "Sounds", "1", settingField<&ProgramSettings::Sounds>},
    {"Misc", "AutoSave", "1", settingField<&ProgramSettings::AutoSave>},
    {"Misc", "ShowSplash", "1", settingField<&ProgramSettings::ShowSplash>},
};
constexpr TextOption afterRunCount[] = {
    {"Misc", "Skin", "0", settingField<&ProgramSettings::Skin>},
    {extractdestination::section, extractdestination::key, extractdestination::firstFolder,
     settingField<&ProgramSettings::ExtractDest>},
    {"Common", "DefUser", "Player", settingField<&ProgramSettings::DefUser>},
    // Short on purpose: what the file gets, not a font family's whole name.
    {"Common", "ASCIIFont", "MS Sans", settingField<&ProgramSettings::ASCIIFont>},
    {"Common", "WindowSize", "0", settingField<&ProgramSettings::WindowSize>},
};

template <class Options>
void load(Program& program, const Options& options) {
    for (const TextOption& option : options)
        option.field(program) =
            program.ini.getKeyValue(option.key, option.defaultText, option.section);
}

template <class Options>
void save(Program& program, const Options& options) {
    for (const TextOption& option : options)
        program.ini.setKeyValue(option.key, option.field(program), option.section);
}

// The count is written back before anything else can go wrong. At 32767 it overflows, and so does
// every later start until the file is edited.
void countRun(Program& program) {
    Int16& timesUsed = program.settings.TimesUsed;
    timesUsed = toInt16(program.ini.getKeyValue("TimesUsed", "1", "Misc"));
    ++timesUsed;
    program.ini.setKeyValue("TimesUsed", std::to_string(timesUsed), "Misc");
}

// A text that is no number names no skin, as a number past the three does.
bool namesSkin(std::string_view text, int number) {
    bool named = false;
    attempt([&] { named = equalsNumber(text, number); });
    return named;
}

}  // namespace

void LoadSettings(Program& program) {
    program.ini.inifile(program.settingsFile());
    load(program, beforeRunCount);
    countRun(program);
    load(program, afterRunCount);
}

void SaveSettings(Program& program) {
    program.ini.inifile(program.settingsFile());
    save(program, beforeRunCount);
    save(program, afterRunCount);
}

void SettingsToPrefs(const Program& program, PrefsOptions& controls) {
    const ProgramSettings& settings = program.settings;
    controls.gameFolder = program.gamePaths.UTPath;
    controls.sounds = toInteger(settings.Sounds);
    controls.autoSave = toInteger(settings.AutoSave);
    controls.extractDest = settings.ExtractDest;
    controls.defUser = settings.DefUser;
    controls.asciiFont = settings.ASCIIFont;
    controls.showSplash = toInteger(settings.ShowSplash);
    controls.firstSkin = namesSkin(settings.Skin, 0);
    controls.secondSkin = namesSkin(settings.Skin, 1);
    controls.thirdSkin = namesSkin(settings.Skin, 2);
}

void PrefsToSettings(Program& program, const PrefsOptions& controls) {
    GamePaths& paths = program.gamePaths;
    paths.UTPath = controls.gameFolder;
    // Derived, never taken from their own keys, and in lower case unlike the defaults.
    paths.UTCachePath = paths.UTPath + "\\cache";
    paths.UTMapPath = paths.UTPath + "\\maps";
    paths.UTSysPath = paths.UTPath + "\\system";

    ProgramSettings& settings = program.settings;
    settings.Sounds = std::to_string(controls.sounds);
    settings.AutoSave = std::to_string(controls.autoSave);
    settings.ExtractDest = controls.extractDest;
    settings.DefUser = controls.defUser;
    settings.ASCIIFont = controls.asciiFont;
    settings.ShowSplash = std::to_string(controls.showSplash);
    if (controls.firstSkin) settings.Skin = "0";
    if (controls.secondSkin) settings.Skin = "1";
    if (controls.thirdSkin) settings.Skin = "2";
}

}  // namespace tessaro
