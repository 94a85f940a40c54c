#pragma once

#include <cmath>

namespace tessaro {

inline constexpr double twipsPerPixel = 15;

/// Twips (15 to a pixel at 96 dpi) to device-independent pixels, rounded.
inline int pixels(double twips) {
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}
/// Device-independent pixels to twips.
inline double twips(int pixels) {
    return pixels * twipsPerPixel;
}

}  // namespace tessaro
