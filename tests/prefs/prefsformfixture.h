#pragma once

#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>
#include <stdexcept>
#include <string>

#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "prefs/Prefs.h"
#include "prefs/gamefixture.h"
#include "support/forms/formsfixture.h"

namespace tessaro::test {

inline const Message unsavedQuestion{
    "The Current Settings have not yet been saved, Do you wish to save?", "Save Settings?",
    Buttons::YesNoCancel, Icon::None};
inline const Message invalidQuestion{"These settings are not valid. Close Tessaro?", "Preferences",
                                     Buttons::YesNo, Icon::Question};

/// The real dialog, on settings that name the game in `C:\UT`.
class PrefsFormFixture : public FormsTest {
  protected:
    PrefsFormFixture() {
        nameGame(program_);
        world().write(settingsFile, settingsOfGame);
    }
    TestWorld& world() { return world_.world; }
    ScriptedDialogs& dialogs() { return world_.dialogs; }

    Prefs* loaded() { return forms_.loaded<Prefs>(); }
    /// Loads the dialog and shows it as the active window.
    Prefs& open() {
        auto& prefs = forms_.get<Prefs>();
        forms_.show(prefs);
        QApplication::setActiveWindow(&prefs);
        serveEvents();
        return prefs;
    }
    Prefs& openOnGame() {
        makeGame(world(), "C:\\UT");
        return open();
    }
    /// On a folder that is no game, with the browse at opening given up.
    Prefs& openWithoutGame() {
        dialogs().pick("");
        dialogs().answer(Answer::Cancel);
        return open();
    }

    template <class Control = QAbstractButton>
    Control& control(const char* name) {
        auto* found = loaded()->findChild<Control*>(QLatin1String(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    QLineEdit& box(const char* name) { return control<QLineEdit>(name); }
    std::string textOf(const char* name) { return fromQt(box(name).text()); }
    /// A click of the mouse, with what it does to the focus.
    void click(const char* name) {
        QTest::mouseClick(&control(name), Qt::LeftButton, {},
                          QPoint(8, control(name).height() / 2));
        serveEvents();
    }
    void type(const char* name, const char* text) {
        box(name).setFocus();
        box(name).selectAll();
        QTest::keyClicks(&box(name), QLatin1String(text));
    }
    bool holds(const std::string& file, const std::string& line) {
        return world().read(file).find(line + "\r\n") != std::string::npos;
    }

    const std::string settingsFile = "C:\\Tessaro\\vornx.ini";
    const std::string gameIni = "C:\\UT\\system\\unrealtournament.ini";
    const std::string userIni = "C:\\UT\\system\\user.ini";
};

}  // namespace tessaro::test
