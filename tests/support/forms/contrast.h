#pragma once

#include <QColor>
#include <algorithm>
#include <cmath>

namespace tessaro::test {

/// Brightness of a colour as the eye has it, 0 to 1.
inline double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// From 1 (the same) to 21 (black on white). Letters of any size can be read from 4.5 on.
inline double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

inline constexpr double readable = 4.5;

}  // namespace tessaro::test
