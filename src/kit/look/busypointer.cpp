#include "kit/look/busypointer.h"

#include <QCursor>
#include <QGuiApplication>

namespace tessaro {

void BusyPointer::show(bool busy) {
    if (busy == shown_) return;
    shown_ = busy;
    busy ? QGuiApplication::setOverrideCursor(Qt::WaitCursor)
         : QGuiApplication::restoreOverrideCursor();
}

}  // namespace tessaro
