#include "bench/figure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace tessaro::bench {
namespace {

constexpr int nameWidth = 50;

}  // namespace

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

CostMedians takeTurns(int rounds, const std::function<Cost()>& ours,
                      const std::function<Cost()>& reference) {
    std::vector<double> oursProcessor;
    std::vector<double> referenceProcessor;
    const auto noting = [](const std::function<Cost()>& measurement, std::vector<double>& values) {
        return [&] {
            const Cost cost = measurement();
            values.push_back(cost.processor);
            return cost.clock;
        };
    };
    const Medians clock =
        takeTurns(rounds, noting(ours, oursProcessor), noting(reference, referenceProcessor));
    return {clock, {median(std::move(oursProcessor)), median(std::move(referenceProcessor))}};
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

Cost costOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    const std::clock_t processorStart = std::clock();
    work();
    const std::clock_t processor = std::clock() - processorStart;
    const std::chrono::duration<double, std::milli> clock =
        std::chrono::steady_clock::now() - start;
    return {clock.count(), 1000.0 * static_cast<double>(processor) / CLOCKS_PER_SEC};
}

double wallMilliseconds(const std::function<void()>& work) {
    return costOf(work).clock;
}

double cpuMilliseconds(const std::function<void()>& work) {
    return costOf(work).processor;
}

bool report(const std::string& name, const Medians& medians, const char* unit, double mark) {
    const double ratio = medians.ours / medians.reference;
    const bool kept = ratio <= mark;  // also false for a ratio that is no number
    std::printf("%-*s %9.3f %s %9.3f %s %6.2f  (at most %.2f)%s\n", nameWidth, name.c_str(),
                medians.ours, unit, medians.reference, unit, ratio, mark, kept ? "" : "  MISSED");
    std::fflush(stdout);
    return kept;
}

void tell(const std::string& name, double value, const char* unit) {
    std::printf("%-*s %9.3f %s\n", nameWidth, name.c_str(), value, unit);
    std::fflush(stdout);
}

}  // namespace tessaro::bench
