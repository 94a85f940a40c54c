#pragma once

#include <QEventLoop>
#include <QObject>
#include <QWidget>

namespace tessaro {

/// Makes a window application-modal while it lives, and waits for it to be hidden.
class ModalLoop : public QObject {
  public:
    explicit ModalLoop(QWidget& window);
    ~ModalLoop() override;

    /// Serves events until the handler that hides the window is through. The window may be visible
    /// again by then.
    void wait() { loop_.exec(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QWidget& window_;
    QEventLoop loop_;
};

}  // namespace tessaro
