#pragma once

#include <string>
#include <vector>

#include "prefs/gamefixture.h"
#include "prefs/recordingview.h"

namespace tessaro::test {

using Steps = std::vector<std::string>;

/// The dialog's rules on a view without a window. The program's folder has a settings file.
class PreferencesFixture : public GameFixture {
  protected:
    PreferencesFixture() {
        view.changed = [this] { prefs.changed(); };
        test.world.write("C:\\Tessaro\\vornx.ini", settingsOfGame);
    }

    /// Opens the dialog on a good game.
    void openOnGame() {
        makeGame(test.world, "C:\\UT");
        prefs.open();
        view.steps.clear();
    }
    static Message refusal(const std::string& folder) {
        return {"The Specified Folder: " + folder +
                    " does not contain a valid\ndirectory structure, Please try again.",
                "Please Locate UT Directory", Buttons::OkCancel, Icon::None};
    }
    std::string settingsFile() { return test.world.read("C:\\Tessaro\\vornx.ini"); }

    RecordingView view;
    PrefsRules prefs{program, view};
};

}  // namespace tessaro::test
