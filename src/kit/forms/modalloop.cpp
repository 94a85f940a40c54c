#include "kit/forms/modalloop.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace tessaro {
namespace {

// Without an owner some desktops put a modal window behind the one that it blocks.
void ownByActiveWindow(QWidget& window) {
    const QWidget* owner = QApplication::activeWindow();
    window.winId();  // makes the window's handle
    if (owner != nullptr && owner != &window)
        window.windowHandle()->setTransientParent(owner->windowHandle());
}

}  // namespace

ModalLoop::ModalLoop(QWidget& window) : window_(window) {
    // Modality counts from the next show on.
    if (window.isVisible()) window.hide();
    window.setWindowModality(Qt::ApplicationModal);
    ownByActiveWindow(window);
    window.installEventFilter(this);
}

ModalLoop::~ModalLoop() {
    if (!window_.isVisible()) window_.setWindowModality(Qt::NonModal);
}

bool ModalLoop::eventFilter(QObject* watched, QEvent* event) {
    // A minimised window is hidden by the desktop, which is no end.
    if (watched == &window_ && event->type() == QEvent::Hide && !event->spontaneous()) loop_.quit();
    return false;
}

}  // namespace tessaro
