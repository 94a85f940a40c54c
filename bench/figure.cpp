#include "bench/figure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace tessaro::bench {

Medians takeTurns(int rounds, const Measurement& ours, const Measurement& reference) {
    std::vector<double> oursTook;
    std::vector<double> referenceTook;
    ours();
    reference();
    for (int round = 0; round < rounds; ++round) {
        oursTook.push_back(ours());
        referenceTook.push_back(reference());
    }
    return {median(std::move(oursTook)), median(std::move(referenceTook))};
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double wallMilliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> took = std::chrono::steady_clock::now() - start;
    return took.count();
}

double cpuMilliseconds(const std::function<void()>& work) {
    const std::clock_t start = std::clock();
    work();
    return 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

bool report(const std::string& name, const Medians& medians, const char* unit, double mark) {
    const double ratio = medians.ours / medians.reference;
    const bool kept = ratio <= mark;  // also false for a ratio that is no number
    std::printf("%-50s %9.3f %s %9.3f %s %6.2f  (at most %.2f)%s\n", name.c_str(), medians.ours,
                unit, medians.reference, unit, ratio, mark, kept ? "" : "  MISSED");
    std::fflush(stdout);
    return kept;
}

}  // namespace tessaro::bench
