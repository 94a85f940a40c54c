// tessaro-bench-plain: a plain main window with the menu bar, the picture and the status bar of
// ours, ended at its first paint.

#include <QApplication>
#include <QImageReader>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <algorithm>
#include <map>

#include "bench/window/firstpaint.h"
#include "kit/look/text.h"
#include "shell/menutable.h"

// Outside every namespace, as the macro declares a function of the resource compiler.
static void initResources() {
    Q_INIT_RESOURCE(tessaro);
}

namespace tessaro::bench {
namespace {

bool isMenu(const MenuItem& item) {
    return std::any_of(std::begin(menuItems), std::end(menuItems),
                       [&](const MenuItem& each) { return each.parent == item.name; });
}

void addAction(QMenu& menu, const MenuItem& item) {
    if (item.caption.empty()) {
        menu.addSeparator();
    } else {
        menu.addAction(toQt(item.caption))->setShortcut(QKeySequence(toQt(item.shortcut)));
    }
}

// All but the menu that is not on the bar.
void buildMenus(QMenuBar& bar) {
    std::map<std::string_view, QMenu*> menus;
    for (const MenuItem& item : menuItems) {
        const auto above = menus.find(item.parent);
        if (item.parent.empty()) {
            menus[item.name] = bar.addMenu(toQt(item.caption));
        } else if (above != menus.end() && isMenu(item)) {
            menus[item.name] = above->second->addMenu(toQt(item.caption));
        } else if (above != menus.end()) {
            addAction(*above->second, item);
        }
    }
}

QPixmap readPicture() {
    initResources();
    QImageReader reader(QStringLiteral(":/pictures/main.png"), QByteArrayLiteral("png"));
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

int run(int argc, char** argv) {
    const QApplication application(argc, argv);
    const FirstPaint hook;
    QMainWindow window;
    buildMenus(*window.menuBar());
    auto* picture = new QLabel;
    picture->setScaledContents(true);
    picture->setPixmap(readPicture());
    window.setCentralWidget(picture);
    window.statusBar()->showMessage(QStringLiteral("Tessaro"));
    window.resize(760, 540);  // as large as ours
    window.show();
    return QApplication::exec();
}

}  // namespace
}  // namespace tessaro::bench

int main(int argc, char** argv) {
    return tessaro::bench::run(argc, argv);
}
