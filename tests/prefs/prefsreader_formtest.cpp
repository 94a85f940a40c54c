// The dialog in the hands of a screen reader, which sets options and presses buttons without a
// click and without moving the focus.

#include <QCheckBox>

#include "prefs/prefsformfixture.h"
#include "support/forms/reader.h"

namespace tessaro::test {
namespace {

class PrefsForReaders : public PrefsFormFixture {
  protected:
    void press(const char* name) {
        act(control(name), QAccessibleActionInterface::pressAction());
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return loaded() == nullptr || !control(name).isDown(); }));
        serveEvents();
    }
    bool cancelAsks() {
        dialogs().messages.clear();
        dialogs().answer(Answer::Cancel);
        press("Command5");
        return dialogs().messages == std::vector<Message>{unsavedQuestion};
    }
};

TEST_F(PrefsForReaders, EveryOptionThatIsSetMarksTheDialog) {
    makeGame(world(), "C:\\UT");
    for (const char* name : {"Check1", "Check2", "Check3", "Check4", "Option2", "Option3",
                             "Option4", "Option6", "Option7"}) {
        Prefs& prefs = open();
        const bool before = control(name).isChecked();
        toggle(control(name));
        EXPECT_NE(control(name).isChecked(), before) << name;
        EXPECT_TRUE(cancelAsks()) << name;
        forms_.unload(prefs);
    }
}

TEST_F(PrefsForReaders, WhatWasSetIsSaved) {
    openOnGame();
    toggle(control("Check2"));
    toggle(control("Option4"));
    press("Command6");
    EXPECT_TRUE(holds(settingsFile, "AutoSave=1"));
    EXPECT_TRUE(holds(settingsFile, "Skin=1"));
}

TEST_F(PrefsForReaders, ADialogThatWasOnlyFilledIsNotMarked) {
    openOnGame();
    press("Command5");
    EXPECT_EQ(loaded(), nullptr);
    EXPECT_EQ(dialogs().messages, std::vector<Message>{});
}

TEST_F(PrefsForReaders, AGreyedBoxIsLeftForGood) {
    program_.settings.Sounds = "2";
    openOnGame();
    auto& sounds = control<QCheckBox>("Check1");
    for (int i = 0; i < 4; ++i) {
        toggle(sounds);
        EXPECT_NE(sounds.checkState(), Qt::PartiallyChecked);
    }
}

}  // namespace
}  // namespace tessaro::test
