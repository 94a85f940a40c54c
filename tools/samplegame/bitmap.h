#pragma once

#include "tools/samplegame/rng.h"

#include <string>

namespace tessaro::sample {

/// A picture in the form in which the game saves its screenshots: a BMP file of 24 bits per pixel
/// without compression, bottom row first, rows padded to 4 bytes, blue before green before red.
/// It shows an invented scene (sky, floor tiles, pillars, a lamp), rather dark as the game's are.
/// `width` and `height` are in pixels; raises std::invalid_argument where one is not positive.
std::string screenshotBmp(int width, int height, Rng& rng);

}  // namespace tessaro::sample
