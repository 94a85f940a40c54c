#include "platform/text/codepage.h"

#include <algorithm>
#include <array>

namespace tessaro {

namespace {

// Codes 80 to 9F; the page is Latin-1 everywhere else.
constexpr std::array<char32_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned firstControl = 0x80;

bool isLatin1(char32_t value) {
    return value < firstControl || (value >= firstControl + upperControls.size() && value <= 0xFF);
}

}  // namespace

char32_t fromCodePage(unsigned char code) {
    return isLatin1(code) ? code : upperControls[code - firstControl];
}

std::optional<unsigned char> toCodePage(char32_t character) {
    if (isLatin1(character)) return static_cast<unsigned char>(character);
    const auto* found = std::ranges::find(upperControls, character);
    if (found == upperControls.end()) return std::nullopt;
    return static_cast<unsigned char>(firstControl +
                                      static_cast<unsigned>(found - upperControls.begin()));
}

}  // namespace tessaro
