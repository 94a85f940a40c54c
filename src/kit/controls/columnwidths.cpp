#include "kit/controls/columnwidths.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <numeric>

namespace tessaro {
namespace {

int sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

// Adds `extra` to the widths from `first` on, to each as it weighs; nothing of it is lost.
void spread(std::vector<int>& widths, const std::vector<int>& weights, std::size_t first,
            int extra) {
    int weight =
        std::accumulate(weights.begin() + static_cast<std::ptrdiff_t>(first), weights.end(), 0);
    for (std::size_t i = first; i < widths.size() && weight > 0; ++i) {
        const int share = static_cast<int>(static_cast<long long>(extra) * weights[i] / weight);
        widths[i] += share;
        extra -= share;
        weight -= weights[i];
    }
}

}  // namespace

std::vector<int> sharedWidths(const std::vector<int>& wanted, const std::vector<int>& least,
                              int total) {
    if (wanted.empty()) return {};
    const int missing = sum(wanted) - total;
    if (missing <= 0) {
        std::vector<int> widths = wanted;
        spread(widths, wanted, 0, -missing);
        return widths;
    }
    std::vector<int> widths = least;
    int left = std::max(total - sum(least), 0);
    // One long name must not hide what the other columns tell.
    const int rest = total - (sum(wanted) - wanted.front());
    const int most = std::min(wanted.front(), std::max(total * 3 / 5, rest));
    const int names = std::clamp(most - least.front(), 0, left);
    widths.front() += names;
    left -= names;
    std::vector<int> lacking(wanted.size());
    std::transform(wanted.begin(), wanted.end(), least.begin(), lacking.begin(), std::minus<>());
    spread(widths, lacking, 1, left);
    return widths;
}

}  // namespace tessaro
