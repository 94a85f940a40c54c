#pragma once
// The rules of the preferences dialog, apart from its window.

#include <string>

#include "core/clsINI.h"
#include "core/iniCalls.h"
#include "core/program.h"
#include "prefs/gametweaks.h"

namespace tessaro {

/// What the rules ask of the dialog. Changes of its controls, also those made from here, come back
/// through `PrefsRules::changed`.
class PrefsView {
  public:
    virtual ~PrefsView() = default;

    /// The text of `Text1`.
    virtual std::string folder() = 0;
    virtual void showFolder(const std::string& folder) = 0;
    virtual void selectFolder() = 0;
    virtual void showTimesUsed(int count) = 0;
    virtual PrefsOptions options() = 0;
    virtual void showOptions(const PrefsOptions& options) = 0;
    virtual GameTweaks tweaks() = 0;
    virtual void showTweaks(const GameTweaks& tweaks) = 0;

    /// Whether `Command6` is enabled. Nothing ever disables it again.
    virtual bool okEnabled() = 0;
    /// Enables `Command6` and `Command2`.
    virtual void enableSaving() = 0;

    virtual void applySkin() = 0;
    virtual void hideDialog() = 0;
    virtual void showDialog() = 0;
    /// Unloads the dialog, without a question. Also called while it is still loading.
    virtual void closeDialog() = 0;
    /// Unloads the dialog and the main window and ends the program.
    virtual void endProgram() = 0;
};

/// One for each load of the dialog.
class PrefsRules {
  public:
    PrefsRules(Program& program, PrefsView& view);

    /// The dialog's Load. Raises what reading the settings and the game's files raises.
    void open();
    /// `Command1`: asks for the game's folder until one is right or the user gives up.
    void browse();
    /// `Command2`.
    void apply();
    /// `Command6`.
    void ok();
    /// `Command5` and the close box.
    void cancel();
    /// `Command3`.
    void clearCache();

    /// To be called for a change that counts as one to be saved.
    void changed() { PrefsDirty_ = 1; }
    int PrefsDirty() const { return PrefsDirty_; }

  private:
    void enableIfValid();
    bool loadTweaks();
    void accept(const std::string& folder);
    Answer askForAnother(const std::string& folder);
    void save();
    Answer askToSave();

    Program& program_;
    PrefsView& view_;
    clsINI INI;
    int PrefsDirty_ = 0;  // 1 from a change until it is applied
};

}  // namespace tessaro
