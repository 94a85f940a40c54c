#include "shell/menus.h"

#include <QImage>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <map>

#include "cache/mapext.h"
#include "compress/comp.h"
#include "compress/decomp.h"
#include "editor/inieditor.h"
#include "players/Users.h"
#include "players/ascii.h"
#include "prefs/Prefs.h"
#include "screenshots/screenshot.h"
#include "servers/iplist.h"
#include "shell/about.h"
#include "shell/menutable.h"
#include "shell/webpage.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

class MenusForm : public GameFormsTest {
  protected:
    MenusForm() { start(); }
    QMenu* menu(const char* name) {
        return forms_.get<MainFrm>().findChild<QMenu*>(QLatin1String(name));
    }
    // Captions of a menu's items, separators as "-".
    QStringList captions(const QList<QAction*>& actions) {
        QStringList all;
        for (const QAction* action : actions)
            all << (action->isSeparator() ? QStringLiteral("-") : action->text());
        return all;
    }
};

TEST_F(MenusForm, BarHasFourMenusAndNotThePopUpMenu) {
    EXPECT_EQ(captions(forms_.get<MainFrm>().menuBar()->actions()),
              (QStringList{"&File", "&Edit", "&Tools", "&Help"}));
}

TEST_F(MenusForm, ItemsStandInOrder) {
    EXPECT_EQ(captions(menu("mnufilemain")->actions()),
              (QStringList{"&Unreal Tournament Links", "&About Ovrin Tessaro", "-", "E&xit"}));
    EXPECT_EQ(
        captions(menu("mnulinks")->actions()),
        (QStringList{"UT Homepage", "Planetunreal", "UnrealItalia", "UnrealFiles", "Unreality"}));
    EXPECT_EQ(captions(menu("mnuedit")->actions()),
              (QStringList{"INI File Editor (*.ini)", "-", "&Preferences"}));
    EXPECT_EQ(captions(menu("mnuhelp")->actions()),
              (QStringList{"Tessaro Help", "Unreal Console Commands", "Running UT Servers",
                           "Server Administration"}));
    EXPECT_EQ(captions(menu("mnutools")->actions()),
              (QStringList{"&Map Extractor", "Package &Compressor", "Package &Decompressor", "-",
                           "&User Manager", "&IP Address Manager", "-", "&ASCII Character Viewer",
                           "&Screenshot Viewer"}));
    EXPECT_EQ(captions(menu("mnumypopup")->actions()),
              (QStringList{"About Tessaro", "-", "Map Extractor", "Compressor", "-", "Preferences",
                           "-", "User Manager", "IP Address Manager", "ASCII Viewer",
                           "Screenshot Viewer", "-", "Exit"}));
}

TEST_F(MenusForm, EveryKeyBelongsToItsItem) {
    std::map<std::string, std::string> keys;
    for (const MenuItem& item : menuItems) {
        if (menu(std::string(item.name).c_str()) != nullptr) continue;
        const std::string key =
            menuItem(std::string(item.name).c_str()).shortcut().toString().toStdString();
        if (!key.empty()) keys[std::string(item.name)] = key;
    }
    EXPECT_EQ(keys, (std::map<std::string, std::string>{{"mnuabout", "Ctrl+A"},
                                                        {"mnuinieditor", "Ctrl+E"},
                                                        {"mnuprefs", "Ctrl+P"},
                                                        {"mnumapextractor", "Ctrl+M"},
                                                        {"mnumapcompress", "Ctrl+C"},
                                                        {"mnudecomp", "Ctrl+D"},
                                                        {"mnuusermanager", "Ctrl+U"},
                                                        {"mnuipaddr", "Ctrl+I"},
                                                        {"mnuviewscrnshot", "F9"},
                                                        {"mnumehelp", "F1"},
                                                        {"mnuucc", "F2"},
                                                        {"mnurunserver", "F3"},
                                                        {"mnuserveradmin", "F4"}}));
}

TEST_F(MenusForm, EveryItemBearsItsName) {
    const std::pair<const char*, const char*> items[] = {{"mnuwwwut", "UT Homepage"},
                                                         {"mnuwwwplanet", "Planetunreal"},
                                                         {"mnuutitalia", "UnrealItalia"},
                                                         {"mnuunrealfiles", "UnrealFiles"},
                                                         {"mnuunreality", "Unreality"},
                                                         {"mnuexit", "E&xit"},
                                                         {"mnuascii", "&ASCII Character Viewer"},
                                                         {"mnuraboot", "About Tessaro"},
                                                         {"mnurmapext", "Map Extractor"},
                                                         {"mnurcompress", "Compressor"},
                                                         {"mnurprefs", "Preferences"},
                                                         {"mnuruserman", "User Manager"},
                                                         {"mnuripaddr", "IP Address Manager"},
                                                         {"mnurasciiview", "ASCII Viewer"},
                                                         {"mnurscrnsht", "Screenshot Viewer"},
                                                         {"mnurexit", "Exit"}};
    for (const auto& [name, caption] : items)
        EXPECT_EQ(menuItem(name).text(), QLatin1String(caption)) << name;
    for (const char* name : {"mnuhyph1", "mnuhyph2", "mnuhyph3", "mnuhyph4", "fiejfi",
                             "mnusplitter2", "mnusplitter3", "mnusplitter6"})
        EXPECT_TRUE(menuItem(name).isSeparator()) << name;
}

TEST_F(MenusForm, NoItemIsLeftWithoutACommand) {
    for (const MenuItem& item : menuItems) {
        const std::string name(item.name);
        if (menu(name.c_str()) != nullptr || menuItem(name.c_str()).isSeparator()) continue;
        EXPECT_TRUE(menuItem(name.c_str()).isEnabled()) << name;
    }
}

// What an item opens, and whether it blocks the main window.
struct Opened {
    const char* item;
    Form* (*form)(Forms&);
    bool modal;
};

template <class T>
Form* loadedForm(Forms& forms) {
    return forms.loaded<T>();
}

const Opened openedForms[] = {
    {"mnuabout", loadedForm<about>, true},
    {"mnuraboot", loadedForm<about>, true},
    {"mnuinieditor", loadedForm<inieditor>, false},
    {"mnuprefs", loadedForm<Prefs>, true},
    {"mnurprefs", loadedForm<Prefs>, true},
    {"mnumapextractor", loadedForm<mapext>, false},
    {"mnurmapext", loadedForm<mapext>, true},
    {"mnumapcompress", loadedForm<comp>, false},
    {"mnurcompress", loadedForm<comp>, false},
    {"mnudecomp", loadedForm<decomp>, false},
    {"mnuusermanager", loadedForm<Users>, false},
    {"mnuruserman", loadedForm<Users>, false},
    {"mnuipaddr", loadedForm<iplist>, false},
    {"mnuripaddr", loadedForm<iplist>, false},
    {"mnuascii", loadedForm<ascii>, false},
    {"mnurasciiview", loadedForm<ascii>, false},
    {"mnuviewscrnshot", loadedForm<screenshot>, false},
    {"mnurscrnsht", loadedForm<screenshot>, false},
    {"mnuucc", loadedForm<webpage>, true},
    {"mnurunserver", loadedForm<webpage>, true},
    {"mnuserveradmin", loadedForm<webpage>, true},
};

TEST_F(MenusForm, EachItemOpensItsFormWhichBlocksOrNot) {
    QImage shot(64, 48, QImage::Format_RGB888);
    shot.fill(Qt::blue);
    const HostPath file = disk_.at("C:\\UnrealTournament\\System\\Shot0001.bmp");
    ASSERT_TRUE(shot.save(QString::fromStdString(file.string()), "BMP"));
    for (const Opened& opened : openedForms) {
        bool modal = false;
        const auto shown = [&] {
            Form* form = opened.form(forms_);
            return form != nullptr && form->window().isVisible();
        };
        const WhenItComes form(shown, [&] {
            modal = opened.form(forms_)->window().isModal();
            forms_.unload(*opened.form(forms_));
        });
        menuItem(opened.item).trigger();
        EXPECT_TRUE(QTest::qWaitFor([&] { return form.acted(); })) << opened.item;
        EXPECT_EQ(modal, opened.modal) << opened.item;
    }
    EXPECT_FALSE(end_.ended());
}

TEST_F(MenusForm, AnItemWithoutACommandIsDisabled) {
    QMainWindow window;
    buildMenus(forms_, window, {{"mnuexit", [] {}}});
    EXPECT_TRUE(window.findChild<QAction*>(QStringLiteral("mnuexit"))->isEnabled());
    EXPECT_FALSE(window.findChild<QAction*>(QStringLiteral("mnurexit"))->isEnabled());
}

}  // namespace
}  // namespace tessaro::test
