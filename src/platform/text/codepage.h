#pragma once

#include <optional>

namespace tessaro {

/// Code page 1252, in which the game's older builds hold text. Each of the 256 codes stands for one
/// character and comes back as the same code; the five that the page leaves open stand for U+0081,
/// U+008D, U+008F, U+0090 and U+009D.
char32_t fromCodePage(unsigned char code);

/// Nothing if the page does not have the character.
std::optional<unsigned char> toCodePage(char32_t character);

}  // namespace tessaro
