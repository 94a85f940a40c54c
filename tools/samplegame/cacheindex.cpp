#include "tools/samplegame/cacheindex.h"

#include <stdexcept>

namespace tessaro::sample {

namespace {

constexpr std::string_view euroSign = "\xE2\x82\xAC";
constexpr char euroInCodePage = '\x80';

[[noreturn]] void refuse(std::string_view utf8) {
    throw std::runtime_error("not a text in code page 1252: " + std::string(utf8));
}

bool isContinuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

// U+00A0 to U+00FF are two bytes in UTF-8: C2 or C3, and a continuation. C2 80 to C2 9F would be
// the control characters that the code page has other letters for.
bool isLatinLetter(std::string_view rest) {
    if (rest.size() < 2 || !isContinuation(rest[1])) return false;
    return rest[0] == '\xC3' || (rest[0] == '\xC2' && static_cast<unsigned char>(rest[1]) >= 0xA0U);
}

char latinLetter(std::string_view rest) {
    const auto low = static_cast<unsigned char>(rest[1]);
    return static_cast<char>(rest[0] == '\xC3' ? low + 0x40U : low);
}

}  // namespace

std::string toCodePage(std::string_view utf8) {
    std::string bytes;
    for (std::string_view rest = utf8; !rest.empty();) {
        if (static_cast<unsigned char>(rest[0]) < 0x80U) {
            bytes.push_back(rest[0]);
            rest.remove_prefix(1);
        } else if (isLatinLetter(rest)) {
            bytes.push_back(latinLetter(rest));
            rest.remove_prefix(2);
        } else if (rest.starts_with(euroSign)) {
            bytes.push_back(euroInCodePage);
            rest.remove_prefix(euroSign.size());
        } else {
            refuse(utf8);
        }
    }
    return bytes;
}

std::string cacheIndex(const std::vector<CacheFile>& lines) {
    std::string text = "[Cache]\r\n";
    for (const CacheFile& line : lines)
        text += line.guid + '=' + toCodePage(line.trueName) + "\r\n";
    return text;
}

}  // namespace tessaro::sample
