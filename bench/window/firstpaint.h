#pragma once

#include <QObject>

namespace tessaro::bench {

/// Ends the program as soon as a main window has been painted whole, and prints one line:
///
///     nanoseconds of the steady clock, resident kilobytes
///
/// The line is written once the paint under way has been pushed to the screen.
class FirstPaint : public QObject {
  public:
    /// Watches the application, which must exist.
    FirstPaint();

    bool eventFilter(QObject* watched, QEvent* event) override;
    bool event(QEvent* event) override;

  private:
    bool seen_ = false;
};

}  // namespace tessaro::bench
