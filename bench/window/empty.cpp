// tessaro-bench-empty: a main window with nothing in it, ended at its first paint.

#include <QApplication>
#include <QMainWindow>

#include "bench/window/firstpaint.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const tessaro::bench::FirstPaint hook;
    QMainWindow window;
    window.resize(760, 540);  // as large as ours: what a window's pixels take is no merit
    window.show();
    return QApplication::exec();
}
