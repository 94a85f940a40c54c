#include "bench/figure.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

namespace tessaro::bench {
namespace {

constexpr int nameWidth = 50;

Comparison middleOf(std::vector<Comparison> rounds) {
    const auto middle = rounds.begin() + static_cast<std::ptrdiff_t>(rounds.size() / 2);
    std::nth_element(rounds.begin(), middle, rounds.end(),
                     [](const Comparison& one, const Comparison& other) {
                         return one.ours * other.reference < other.ours * one.reference;
                     });
    return *middle;
}

}  // namespace

Comparison takeTurns(int rounds, const Measurement& ours, const Measurement& reference) {
    const auto costing = [](const Measurement& measurement) {
        return [&] { return Cost{measurement(), 0}; };
    };
    return takeTurns(rounds, costing(ours), costing(reference)).clock;
}

CostComparison takeTurns(int rounds, const std::function<Cost()>& ours,
                         const std::function<Cost()>& reference) {
    std::vector<Comparison> clock;
    std::vector<Comparison> processor;
    ours();
    reference();
    for (int round = 0; round < rounds; ++round) {
        const Cost oursTook = ours();
        const Cost referenceTook = reference();
        clock.push_back({oursTook.clock, referenceTook.clock});
        processor.push_back({oursTook.processor, referenceTook.processor});
    }
    return {middleOf(std::move(clock)), middleOf(std::move(processor))};
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

bool report(const std::string& name, const Comparison& compared, const char* unit, double mark) {
    const double ratio = compared.ours / compared.reference;
    const bool kept = ratio <= mark;  // also false for a ratio that is no number
    std::printf("%-*s %9.3f %s %9.3f %s %6.2f  (at most %.2f)%s\n", nameWidth, name.c_str(),
                compared.ours, unit, compared.reference, unit, ratio, mark, kept ? "" : "  MISSED");
    std::fflush(stdout);
    return kept;
}

void tell(const std::string& name, double value, const char* unit) {
    std::printf("%-*s %9.3f %s\n", nameWidth, name.c_str(), value, unit);
    std::fflush(stdout);
}

}  // namespace tessaro::bench
