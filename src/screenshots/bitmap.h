#pragma once

#include <QPixmap>
#include <string>

#include "platform/files/files.h"

namespace tessaro {

/// The largest picture that is read, in pixels; with 32 bits each that makes 128 MB.
inline constexpr qint64 mostPixels = qint64(1) << 25;
/// The longest side in pixels. No window can be larger.
inline constexpr int longestSide = 32767;

/// Reads a bitmap (BMP) by its path in the game's form. What a file that was cut short lacks is
/// black. Raises 481 for what is no bitmap, has no pixels or claims to be larger than the above,
/// and what `Files::read` raises.
QPixmap readBitmap(Files& files, const std::string& path);

}  // namespace tessaro
