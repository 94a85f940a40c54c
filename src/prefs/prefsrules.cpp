#include "prefs/prefsrules.h"

#include "core/VORNX.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/numbers.h"
#include "prefs/wipe.h"

namespace tessaro {
namespace {

constexpr char gameFolderHint[] = "It holds Sounds, Maps, Textures, System and Cache.";

}  // namespace

PrefsRules::PrefsRules(Program& program, PrefsView& view)
    : program_(program), view_(view), INI(program.makeINI()) {}

void PrefsRules::open() {
    view_.applySkin();
    view_.showFolder(program_.gamePaths.UTPath);
    view_.showTimesUsed(program_.settings.TimesUsed);
    program_.events.pump();
    enableIfValid();
    // A dialog that stops here keeps its options as they were designed, and stays dirty from the
    // filling of its controls.
    if (!loadTweaks()) return;
    PrefsOptions options = view_.options();
    SettingsToPrefs(program_, options);
    view_.showOptions(options);
    view_.selectFolder();
    PrefsDirty_ = 0;
}

void PrefsRules::enableIfValid() {
    if (ValidatePaths(program_, view_.folder()) == Yes) view_.enableSaving();
}

// Whether opening goes on.
bool PrefsRules::loadTweaks() {
    GameTweaks tweaks = view_.tweaks();
    const TweaksRead read = LoadGameTweaks(program_, INI, tweaks);
    view_.showTweaks(tweaks);
    if (read == TweaksRead::NoGameIni) browse();
    return read == TweaksRead::Complete;
}

void PrefsRules::browse() {
    std::string folder;
    do {
        folder = BrowseForFolder(
            program_, {"Select Your Unreal Tournament Folder.", view_.folder(), gameFolderHint});
        // An empty choice is refused ahead of the check, which would look into the drive's root.
        if (!folder.empty() && ValidatePaths(program_, folder) == Yes) return accept(folder);
    } while (askForAnother(folder) == Answer::Ok);
    // What counts is the folder shown, chosen now or not.
    if (DirExists(program_, view_.folder() + "\\system") == Yes) view_.closeDialog();
}

void PrefsRules::accept(const std::string& folder) {
    view_.showFolder(folder);
    enableIfValid();
    GameTweaks tweaks = view_.tweaks();
    if (LoadGameTweaksFromFolder(program_, INI, folder, tweaks) == TweaksRead::NoGameIni) return;
    view_.showTweaks(tweaks);
    view_.selectFolder();
    // The paths in memory follow at once; the settings file does not.
    PrefsToSettings(program_, view_.options());
    PrefsDirty_ = 0;
}

Answer PrefsRules::askForAnother(const std::string& folder) {
    return program_.dialogs.message({"The Specified Folder: " + folder +
                                         " does not contain a valid\n"
                                         "directory structure, Please try again.",
                                     "Please Locate UT Directory", Buttons::OkCancel, Icon::None});
}

void PrefsRules::apply() {
    PrefsDirty_ = 0;
    view_.hideDialog();
    save();
    view_.applySkin();
    view_.showDialog();
}

void PrefsRules::ok() {
    PrefsDirty_ = 0;
    save();
    view_.closeDialog();
}

// The sound at the end of the tweaks goes by the setting from before the dialog's changes.
void PrefsRules::save() {
    attempt([&] { SaveGameTweaks(program_, INI, view_.tweaks()); });
    attempt([&] { PrefsToSettings(program_, view_.options()); });
    attempt([&] { SaveSettings(program_); });
}

void PrefsRules::cancel() {
    if (!view_.okEnabled()) {
        const Message question{"These settings are not valid. Close Tessaro?", "Preferences",
                               Buttons::YesNo, Icon::Question};
        if (program_.dialogs.message(question) == Answer::Yes) return view_.endProgram();
        if (!view_.okEnabled()) return;
    }
    if (PrefsDirty_ == 1) {
        if (equalsNumber(program_.settings.AutoSave, 1)) return ok();
        const Answer answer = askToSave();
        if (answer == Answer::Yes) return ok();
        if (answer == Answer::Cancel) return;
    }
    view_.closeDialog();
}

Answer PrefsRules::askToSave() {
    return program_.dialogs.message(
        {"The Current Settings have not yet been saved, Do you wish to save?", "Save Settings?",
         Buttons::YesNoCancel, Icon::None});
}

void PrefsRules::clearCache() {
    ClearCacheAndTempFiles(program_);
}

}  // namespace tessaro
