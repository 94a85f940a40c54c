#pragma once

#include "bench/figure.h"
#include "bench/world.h"

namespace tessaro::bench {

/// Prints a line for `tessaro-bench` to read: the milliseconds of ours and of the reference.
void hand(const Comparison& compared);

/// The whole `main` of a program that measures what only windows show: makes the one application
/// object, runs `measure` in a world of its own below the folder of the first argument, and gives
/// the exit code.
int measureWindows(int argc, char** argv, void (*measure)(World&));

}  // namespace tessaro::bench
