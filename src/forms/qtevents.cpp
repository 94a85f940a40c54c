#include "forms/qtevents.h"

#include <QEventLoop>
#include <QTime>
#include <QTimer>

namespace tessaro::forms {
namespace {

constexpr int idleMilliseconds = 5;

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

double QtEvents::secondsSinceMidnight() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

}  // namespace tessaro::forms
