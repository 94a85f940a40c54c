#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QSystemTrayIcon>

#include "platform/outside/desktop.h"

namespace tessaro {

/// The program's icon in the desktop's tray: one at a time, none until one is added.
///
/// The picture hangs on the label that is the record's window. A desktop without a tray shows no
/// icon, and shows it as soon as a tray comes up.
class QtTray : public QObject {
    Q_OBJECT
  public:
    /// To add a second icon, or to change or delete one that is not there, does nothing.
    void notify(TrayAction action, const NotifyRecord& record);

  private:
    void add(const NotifyRecord& record);
    void describe(const NotifyRecord& record);
    void remove();
    void hear(QSystemTrayIcon::ActivationReason reason);
    QSystemTrayIcon::ActivationReason withDoubleClicks(QSystemTrayIcon::ActivationReason reason);
    void send(int press, int release) const;
    void send(int message) const;

    QSystemTrayIcon* icon_ = nullptr;
    WId hook_ = 0;              // window that hears of the mouse
    QElapsedTimer sinceClick_;  // runs while the next click may make a double one
};

}  // namespace tessaro
