#pragma once

#include <QObject>

namespace tessaro::bench {

/// Notes a moment of the program's start.
void noteMoment();

/// Ends the program as soon as a main window has been painted whole, and prints one line:
///
///     resident kilobytes, then each moment noted, in nanoseconds of the steady clock
///
/// Notes three moments itself: when the window is about to be shown, when its first paint begins,
/// and when that paint has been pushed to the screen.
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
