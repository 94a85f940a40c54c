#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessaro::bench {

/// Does the work once and gives what it took, in the figure's own unit.
using Measurement = std::function<double()>;

/// Medians of several measurements that took turns, so that whatever else the machine does meets
/// both alike.
struct Medians {
    double ours = 0;
    double reference = 0;
};

/// Takes turns `rounds` times, after one turn that only warms the caches.
Medians takeTurns(int rounds, const Measurement& ours, const Measurement& reference);
/// The middle one of several values.
double median(std::vector<double> values);

/// Milliseconds that the work takes by the clock.
double wallMilliseconds(const std::function<void()>& work);
/// Milliseconds of processor time that the work takes in this process. For what waits for nothing.
double cpuMilliseconds(const std::function<void()>& work);

/// Prints a figure's line and gives whether its ratio is at most the mark.
bool report(const std::string& name, const Medians& medians, const char* unit, double mark);

}  // namespace tessaro::bench
