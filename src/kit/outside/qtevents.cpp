#include "kit/outside/qtevents.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTime>
#include <QTimer>

namespace tessaro {
namespace {

constexpr int idleMilliseconds = 5;

// Sees every event of the program as long as it lives, and takes the end of the desktop's session
// for an end of the program: windows asked to close would refuse it, or leave the wait behind.
class SessionFilter : public QObject {
  public:
    explicit SessionFilter(ProgramEnd& programEnd) : end_(programEnd) {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Quit) return false;
        end_.end();
        return true;
    }

  private:
    ProgramEnd& end_;
};

// Swallows what the user does with mouse, keys and window frames as well.
class InputFilter : public SessionFilter {
  public:
    using SessionFilter::SessionFilter;

    bool eventFilter(QObject* receiver, QEvent* event) override {
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
            default:
                return SessionFilter::eventFilter(receiver, event);
        }
    }
};

}  // namespace

void QtEvents::serve() {
    QEventLoop loop;
    if (!loop.processEvents(QEventLoop::AllEvents) && !end_.ended()) {
        QTimer wakeUp;
        wakeUp.start(idleMilliseconds);
        loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    end_.throwIfEnded();
}

void QtEvents::pump() {
    serve();
}

void QtEvents::pumpEndless() {
    const SessionFilter filter(end_);
    serve();
    end_.throwIfDeserted();
}

void QtEvents::serveWhileBlocked() {
    const InputFilter filter(end_);
    serve();
}

double QtEvents::secondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

}  // namespace tessaro
