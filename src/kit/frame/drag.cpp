#include "kit/frame/drag.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>
#include <optional>

namespace tessaro {
namespace {

// Follows the mouse until the button is released, then removes itself.
class Drag : public QObject {
  public:
    explicit Drag(QWidget& window) : QObject(&window), window_(window) {
        setObjectName(QStringLiteral("drag"));
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (!watched->isWidgetType()) return false;
        if (event->type() == QEvent::MouseButtonRelease) finish();
        if (event->type() == QEvent::MouseMove) {
            const auto* move = static_cast<QMouseEvent*>(event);
            // A release may have gone to a box that opened meanwhile.
            move->buttons() == Qt::NoButton ? finish() : follow(move->globalPosition().toPoint());
        }
        return false;
    }

  private:
    void follow(const QPoint& mouse) {
        if (!grip_) {
            grip_ = mouse - window_.pos();
            if (moveByDesktop()) return finish();
        }
        window_.move(mouse - *grip_);
    }
    bool moveByDesktop() {
        QWindow* handle = window_.windowHandle();
        return handle != nullptr && handle->startSystemMove();
    }
    void finish() {
        qApp->removeEventFilter(this);
        deleteLater();
    }

    QWidget& window_;
    std::optional<QPoint> grip_;  // where the mouse holds the window
};

}  // namespace

void DragForm(QWidget& form) {
    delete form.findChild<QObject*>(QStringLiteral("drag"), Qt::FindDirectChildrenOnly);
    new Drag(form);
}

}  // namespace tessaro
