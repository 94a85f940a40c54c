#pragma once

#include <functional>
#include <string>
#include <vector>

#include "prefs/prefsrules.h"

namespace tessaro::test {

/// The dialog's controls without a window, as designed, and what was done to it, in order.
class RecordingView : public PrefsView {
  public:
    PrefsOptions controls{.gameFolder = {},
                          .sounds = 1,
                          .autoSave = 1,
                          .showSplash = 1,
                          .extractDest = "designed 5",
                          .defUser = "designed 6",
                          .asciiFont = "designed 7"};
    GameTweaks gameTweaks{"UTCredits.unr", StartMap::None, "30", 0};
    int timesUsed = 0;
    bool saving = false;
    bool folderSelected = false;
    std::vector<std::string> steps;
    std::function<void(const std::string& step)> onStep;
    std::function<void()> changed;  ///< what a change of a text box calls

    std::string folder() override { return controls.gameFolder; }
    void showFolder(const std::string& folder) override {
        if (controls.gameFolder != folder && changed) changed();
        controls.gameFolder = folder;
    }
    void selectFolder() override { folderSelected = true; }
    void showTimesUsed(int count) override { timesUsed = count; }
    PrefsOptions options() override { return controls; }
    void showOptions(const PrefsOptions& options) override { controls = options; }
    GameTweaks tweaks() override { return gameTweaks; }
    void showTweaks(const GameTweaks& tweaks) override {
        if (!(gameTweaks == tweaks) && changed) changed();
        gameTweaks = tweaks;
    }

    bool okEnabled() override { return saving; }
    void enableSaving() override { saving = true; }
    void applySkin() override { step("skin"); }
    void hideDialog() override { step("hide"); }
    void showDialog() override { step("show"); }
    void closeDialog() override { step("close"); }
    void endProgram() override { step("end"); }

  private:
    void step(const std::string& name) {
        steps.push_back(name);
        if (onStep) onStep(name);
    }
};

}  // namespace tessaro::test
