#include "bench/window/measuring.h"

#include <QApplication>
#include <cstdio>
#include <stdexcept>

#include "kit/look/style.h"

namespace tessaro::bench {

void hand(const Comparison& compared) {
    std::printf("%f %f\n", compared.ours, compared.reference);
}

int measureWindows(int argc, char** argv, void (*measure)(World&)) {
    QApplication application(argc, argv);
    applyProgramStyle(application);
    try {
        if (argc != 2) throw std::invalid_argument("wanted: a folder");
        World world(argv[1]);
        measure(world);
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

}  // namespace tessaro::bench
