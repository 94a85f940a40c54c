#include "shell/menus.h"

#include <QMenuBar>
#include <map>

#include "shell/menutable.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

class MenusForm : public GameFormsTest {
  protected:
    MenusForm() { start(); }
    QMenu* menu(const char* name) {
        return forms_.get<MainFrm>().findChild<QMenu*>(QLatin1String(name));
    }
    /// Captions of a menu's items, separators as "-".
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

TEST_F(MenusForm, ItemWithoutAToolIsDisabled) {
    for (const char* name : {"mnuabout", "mnuwwwut", "mnuipaddr", "mnuviewscrnshot", "mnumehelp"})
        EXPECT_FALSE(menuItem(name).isEnabled()) << name;
    for (const char* name : {"mnumapextractor", "mnurmapext", "mnuexit", "mnurexit"})
        EXPECT_TRUE(menuItem(name).isEnabled()) << name;
}

}  // namespace
}  // namespace tessaro::test
