#include "shell/menus.h"

#include <QMenuBar>

#include "forms/text.h"
#include "shell/menutable.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {
namespace {

class MenusForm : public GameFormsTest {
  protected:
    MenusForm() { start(); }
    QMenu* menu(const char* name) {
        return forms_.get<forms::MainFrm>().findChild<QMenu*>(QLatin1String(name));
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
    EXPECT_EQ(captions(forms_.get<forms::MainFrm>().menuBar()->actions()),
              (QStringList{"&File", "&Edit", "&Tools", "&Help"}));
}

TEST_F(MenusForm, ItemsStandInOrder) {
    EXPECT_EQ(captions(menu("mnufilemain")->actions()),
              (QStringList{"&Unreal Tournament Links", "&About Ovrin Tessaro", "-", "E&xit"}));
    EXPECT_EQ(
        captions(menu("mnulinks")->actions()),
        (QStringList{"UT Homepage", "Planetunreal", "UnrealItalia", "UnrealFiles", "Unreality"}));
    EXPECT_EQ(captions(menu("mnutools")->actions()),
              (QStringList{"&Map Extractor", "Package &Compressor", "Package &Decompressor", "-",
                           "&User Manager", "&IP Address Manager", "-", "&ASCII Character Viewer",
                           "&Screenshot Viewer"}));
    EXPECT_EQ(captions(menu("mnumypopup")->actions()),
              (QStringList{"About Tessaro", "-", "Map Extractor", "Compressor", "-", "Preferences",
                           "-", "User Manager", "IP Address Manager", "ASCII Viewer",
                           "Screenshot Viewer", "-", "Exit"}));
}

TEST_F(MenusForm, EveryItemBearsItsNameAndKey) {
    for (const MenuItem& item : menuItems) {
        if (menu(std::string(item.name).c_str()) != nullptr) continue;
        const QAction& action = menuItem(std::string(item.name).c_str());
        EXPECT_EQ(action.shortcut().toString(), forms::toQt(item.shortcut)) << item.name;
    }
    EXPECT_EQ(menuItem("mnumapcompress").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_C));
    EXPECT_EQ(menuItem("mnuviewscrnshot").shortcut(), QKeySequence(Qt::Key_F9));
}

TEST_F(MenusForm, ItemWithoutAToolIsDisabled) {
    for (const char* name : {"mnuabout", "mnuwwwut", "mnuusermanager", "mnuascii", "mnumehelp"})
        EXPECT_FALSE(menuItem(name).isEnabled()) << name;
    for (const char* name : {"mnumapextractor", "mnurmapext", "mnuexit", "mnurexit"})
        EXPECT_TRUE(menuItem(name).isEnabled()) << name;
}

}  // namespace
}  // namespace tessaro::test
