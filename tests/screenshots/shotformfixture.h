#pragma once

#include <QContextMenuEvent>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QTest>
#include <string>

#include "kit/look/text.h"
#include "screenshots/bitmaps.h"
#include "screenshots/screenshot.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {

/// The real viewer on the shots of a game in `C:\UnrealTournament`.
class ShotFormTest : public GameFormsTest {
  protected:
    ShotFormTest() { program_.gamePaths.UTSysPath = folder; }

    static std::string shot(const std::string& name) { return folder + "\\" + name; }
    /// Shots of 60 by 40 pixels, which tell themselves apart by their blue: 1, 2, 3...
    void take(std::initializer_list<const char*> names) {
        int blue = 0;
        for (const char* name : names) disk_.write(shot(name), shotBytes(60, 40, ++blue));
    }
    screenshot& open() {
        guarded(forms_, [this] { forms_.show<screenshot>(); });
        serveEvents();
        return form();
    }
    screenshot& open(std::initializer_list<const char*> names) {
        take(names);
        return open();
    }

    screenshot& form() { return forms_.get<screenshot>(); }
    screenshot* loaded() { return forms_.loaded<screenshot>(); }
    QLabel& picture() { return control<QLabel>(form(), "Image1"); }
    QListView& list() { return control<QListView>(form(), "List1"); }
    QMenu& menu() { return control<QMenu>(form(), "mnurcmenu"); }
    void choose(const char* item) { control<QAction>(form(), item).trigger(); }
    void press(Qt::Key key) {
        QTest::keyClick(&list(), key);
        serveEvents();
    }
    std::string caption() { return fromQt(form().windowTitle()); }
    static std::string viewing(const std::string& name) { return "Now Viewing: " + shot(name); }
    /// The blue of the picture on the screen.
    int blueShown() { return picture().grab().toImage().pixelColor(3, 3).blue(); }

    inline static const std::string folder = "C:\\UnrealTournament\\System";
};

}  // namespace tessaro::test
