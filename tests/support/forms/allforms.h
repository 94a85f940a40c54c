#pragma once

#include <QRadioButton>
#include <QStackedWidget>
#include <functional>
#include <string>

#include "support/forms/gameforms.h"
#include "tools/samplegame/players.h"
#include "tools/samplegame/samplegame.h"

namespace tessaro::test {

/// All forms of the program, on the sample game.
class AllFormsTest : public FormsTest {
  protected:
    using Visit = std::function<void(Form&)>;

    /// In the usual font, or in one of so many points.
    explicit AllFormsTest(int points = QApplication::font().pointSize()) {
        QFont font = usualFont_;
        font.setPointSize(points);
        QApplication::setFont(font);
        TestWorld& disk = world_.world;
        sample::buildSampleGame(disk.at("C:\\UnrealTournament"));
        sample::writePlayers(disk.at("C:\\Tessaro"));
        disk.write("C:\\Tessaro\\vornx.ini", "[Misc]\r\nShowSplash=0\r\nSounds=0\r\n");
        guarded(forms_, [this] { forms_.show<MainFrm>(); });
    }

    ~AllFormsTest() override { QApplication::setFont(usualFont_); }

    /// Shows every form that is made known, and visits it in all its states.
    void visitForms(const Visit& visit) {
        for (const std::type_index& type : forms_.known()) {
            Form& form = forms_.get(type);
            SCOPED_TRACE(form.window().windowTitle().toStdString());
            forms_.show(form);
            serveEvents();
            visitPages(form, visit);
            if (type != typeid(MainFrm)) forms_.unload(form);
        }
    }

  private:
    const QFont usualFont_ = QApplication::font();

    /// A wizard has one page for each step.
    static void visitPages(Form& form, const Visit& visit) {
        auto* pages = form.window().findChild<QStackedWidget*>();
        if (pages == nullptr) return visitOptions(form, visit);
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            visitOptions(form, visit);
        }
    }
    /// An option may show controls that were hidden.
    static void visitOptions(Form& form, const Visit& visit) {
        serveEvents();
        visit(form);
        for (auto* option : form.window().findChildren<QRadioButton*>()) {
            if (!option->isVisible() || option->isChecked()) continue;
            option->click();
            serveEvents();
            visit(form);
        }
    }
};

}  // namespace tessaro::test
