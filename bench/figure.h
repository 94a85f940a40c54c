#pragma once

#include <functional>
#include <string>
#include <vector>

namespace tessaro::bench {

/// Does the work once and gives what it took, in the figure's own unit.
using Measurement = std::function<double()>;

/// What both sides took in the round whose ratio is the middle one of several. They take turns, and
/// what else the machine does changes from round to round more than within one.
struct Comparison {
    double ours = 0;
    double reference = 0;
};

/// What a work takes, in milliseconds: by the clock, and of the processor in this process.
struct Cost {
    double clock = 0;
    double processor = 0;
};
struct CostComparison {
    Comparison clock;
    Comparison processor;
};

/// Takes turns `rounds` times, after one turn that only warms the caches.
Comparison takeTurns(int rounds, const Measurement& ours, const Measurement& reference);
/// The same of both costs at once.
CostComparison takeTurns(int rounds, const std::function<Cost()>& ours,
                         const std::function<Cost()>& reference);
/// The middle one of several values.
double median(std::vector<double> values);

Cost costOf(const std::function<void()>& work);
/// Milliseconds that the work takes by the clock.
double wallMilliseconds(const std::function<void()>& work);
/// Milliseconds of processor time that the work takes in this process. For what waits for nothing.
double cpuMilliseconds(const std::function<void()>& work);

/// Prints a figure's line and gives whether its ratio is at most the mark.
bool report(const std::string& name, const Comparison& compared, const char* unit, double mark);
/// Prints a line for what has no reference.
void tell(const std::string& name, double value, const char* unit);

}  // namespace tessaro::bench
