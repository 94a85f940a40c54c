// tessaro-bench-program: the program as it ships, ended at its first paint.

#include "app/application.h"
#include "bench/window/firstpaint.h"

int main(int argc, char** argv) {
    tessaro::Application application(argc, argv);
    const tessaro::bench::FirstPaint hook;
    return application.run();
}
