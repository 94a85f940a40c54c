#include "shell/Skinz.h"

#include <QLabel>
#include <QMouseEvent>

#include "core/MainFrm.h"
#include "kit/forms/handler.h"
#include "kit/look/pictures.h"
#include "kit/look/twips.h"
#include "shell/menus.h"
#include "ui_Skinz.h"

namespace tessaro {
namespace {

// Twips in hexadecimal: the tray's numbers for a press, 516 and 513, times the 15 twips of a pixel.
constexpr QLatin1String rightPress("1E3C");
constexpr QLatin1String leftPress("1E0F");

}  // namespace

Skinz::Skinz(Forms& forms) : FormWindow<QDialog>(forms) {
    Ui::Skinz().setupUi(this);
    // Each control bears the name of its picture.
    for (auto* label : findChildren<QLabel*>()) {
        const QString name = label->objectName().toLower();
        label->setPixmap(programPicture(QStringLiteral(":/pictures/%1.png").arg(name)));
    }
    auto* systraypic = findChild<QLabel*>(QStringLiteral("systraypic"));
    systraypic->setMouseTracking(true);
    systraypic->installEventFilter(this);
}

bool Skinz::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const int x = static_cast<QMouseEvent*>(event)->position().toPoint().x();
        guarded(forms(), [&] { hear(x); });
    }
    return false;
}

void Skinz::hear(int x) {
    const QString message = QString::number(int(twips(x)), 16).toUpper();
    if (message == rightPress) showPopupMenu(forms());
    if (message != leftPress) return;
    auto& mainWindow = forms().get<MainFrm>();
    mainWindow.isVisible() ? mainWindow.hide() : forms().show(mainWindow);
}

QPixmap Skinz::picture(const char* name) const {
    const auto* label = findChild<QLabel*>(QLatin1String(name));
    return label != nullptr ? label->pixmap(Qt::ReturnByValue) : QPixmap();
}

}  // namespace tessaro
