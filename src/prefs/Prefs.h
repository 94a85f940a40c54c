#pragma once

#include <QCheckBox>
#include <memory>

#include "kit/frame/skinnedform.h"
#include "prefs/prefsrules.h"

namespace Ui {
class PrefsContent;
}

namespace tessaro {

/// The preferences dialog. Touching it loads it, hidden, and so reads the game's files; it stays
/// loaded until it is closed.
class Prefs : public SkinnedForm, private PrefsView {
    Q_OBJECT

  public:
    Prefs(Forms& forms, Program& program);
    ~Prefs() override;

    void Load() override;
    /// Closes by the rules of `Command5` or not at all.
    bool QueryUnload() override;

    /// The text of `Text1`.
    std::string folder() override;

  private:
    void setupCommands();
    void setupDirtyMarks();
    void setupChecks();
    void followFocus(const QWidget* left, const QWidget* entered);

    void showFolder(const std::string& folder) override;
    void selectFolder() override;
    void showTimesUsed(int count) override;
    PrefsOptions options() override;
    void showOptions(const PrefsOptions& options) override;
    GameTweaks tweaks() override;
    void showTweaks(const GameTweaks& tweaks) override;
    bool okEnabled() override;
    void enableSaving() override;
    void applySkin() override;
    void hideDialog() override;
    void showDialog() override;
    void closeDialog() override;
    void endProgram() override;

    std::unique_ptr<Ui::PrefsContent> ui_;
    Program& program_;
    PrefsRules rules_;
};

}  // namespace tessaro
