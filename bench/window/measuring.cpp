#include "bench/window/measuring.h"

#include <QApplication>
#include <cstdio>
#include <exception>

#include "kit/look/style.h"

namespace tessaro::bench {

void tell(const Medians& medians) {
    std::printf("%f %f\n", medians.ours, medians.reference);
}

int measureWindows(int argc, char** argv, void (*measure)(World&)) {
    QApplication application(argc, argv);
    applyProgramStyle(application);
    try {
        World world;
        measure(world);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

}  // namespace tessaro::bench
