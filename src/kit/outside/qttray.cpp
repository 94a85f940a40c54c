#include "kit/outside/qttray.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>

#include "kit/look/text.h"

namespace tessaro {

void QtTray::notify(TrayAction action, const NotifyRecord& record) {
    if (action == TrayAction::Add) return add(record);
    if (icon_ == nullptr || record.hWnd != hook_) return;
    action == TrayAction::Modify ? describe(record) : remove();
}

void QtTray::add(const NotifyRecord& record) {
    if (icon_ != nullptr) return;
    icon_ = new QSystemTrayIcon(this);
    hook_ = record.hWnd;
    connect(icon_, &QSystemTrayIcon::activated, this, &QtTray::hear);
    describe(record);
    icon_->show();
}

void QtTray::describe(const NotifyRecord& record) {
    if (const auto* hook = qobject_cast<QLabel*>(QWidget::find(hook_)))
        icon_->setIcon(hook->pixmap(Qt::ReturnByValue));
    icon_->setToolTip(toQt(record.szTip.substr(0, record.szTip.find('\0'))));
}

void QtTray::remove() {
    icon_->hide();
    icon_->deleteLater();  // a click on it may be up the stack
    icon_ = nullptr;
}

// Qt tells of a click as a whole; press and release are sent in turn.
void QtTray::hear(QSystemTrayIcon::ActivationReason reason) {
    switch (withDoubleClicks(reason)) {
        case QSystemTrayIcon::Trigger:
            return send(traymessage::LButtonDown, traymessage::LButtonUp);
        case QSystemTrayIcon::DoubleClick:
            return send(traymessage::LButtonDblClk, traymessage::LButtonUp);
        case QSystemTrayIcon::Context:
            return send(traymessage::RButtonDown, traymessage::RButtonUp);
        default:
            return;
    }
}

// Some desktops tell of two clicks where the user made a double one.
QSystemTrayIcon::ActivationReason QtTray::withDoubleClicks(
    QSystemTrayIcon::ActivationReason reason) {
    const bool again =
        sinceClick_.isValid() && sinceClick_.elapsed() < QApplication::doubleClickInterval();
    if (reason == QSystemTrayIcon::Trigger && !again) {
        sinceClick_.start();
        return reason;
    }
    sinceClick_.invalidate();
    return reason == QSystemTrayIcon::Trigger ? QSystemTrayIcon::DoubleClick : reason;
}

void QtTray::send(int press, int release) const {
    send(press);
    send(release);
}

void QtTray::send(int message) const {
    QWidget* hook = QWidget::find(hook_);
    if (icon_ == nullptr || hook == nullptr) return;  // the press did away with it
    const QPointF place(message, 0);
    QMouseEvent move(QEvent::MouseMove, place, hook->mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(hook, &move);
}

}  // namespace tessaro
