#include "kit/outside/qtevents.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTime>
#include <QTimer>

namespace tessaro {
namespace {

constexpr int idleMilliseconds = 5;

/// Swallows what the user does with mouse, keys and window frames, and takes the end of the
/// desktop's session for an end of the program: asked to close, the windows would refuse it.
class InputFilter : public QObject {
  public:
    explicit InputFilter(ProgramEnd& programEnd) : end_(programEnd) {}

    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::Wheel:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::Shortcut:
            case QEvent::ShortcutOverride:
            case QEvent::InputMethod:
            case QEvent::ContextMenu:
            case QEvent::DragEnter:
            case QEvent::Drop:
                return true;
            case QEvent::Close:
                if (!event->spontaneous()) return false;
                event->ignore();
                return true;
            case QEvent::Quit:
                end_.end();
                return true;
            default:
                return false;
        }
    }

  private:
    ProgramEnd& end_;
};

}  // namespace

void QtEvents::pump() {
    QEventLoop loop;
    if (!loop.processEvents(QEventLoop::AllEvents) && !end_.ended()) {
        QTimer wakeUp;
        wakeUp.start(idleMilliseconds);
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    end_.throwIfEnded();
}

void QtEvents::serveWhileBlocked() {
    InputFilter filter(end_);
    QCoreApplication::instance()->installEventFilter(&filter);
    QEventLoop().processEvents(QEventLoop::AllEvents);
    end_.throwIfEnded();
}

double QtEvents::secondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

}  // namespace tessaro
