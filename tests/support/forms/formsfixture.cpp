#include "support/forms/formsfixture.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace tessaro::test {

FormsTest::~FormsTest() {
    if (!end_.ended()) return;
    // Only the main loop takes an exit back.
    QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
}

void serveEvents() {
    QCoreApplication::processEvents();
}

WhenItComes::WhenItComes(std::function<bool()> come, std::function<void()> act)
    : come_(std::move(come)), act_(std::move(act)) {
    startTimer(1);
}

void WhenItComes::timerEvent(QTimerEvent* event) {
    if (acted_ || !come_()) return;
    acted_ = true;
    killTimer(event->timerId());
    act_();
}

}  // namespace tessaro::test
