#include "platform/files/standins.h"

namespace tessaro {

namespace {

constexpr std::string_view lettersWithMeaning = "\\*?\"";
constexpr char startOfStandIns = '\xEF';

/// U+F000 and the letter's own code, in UTF-8.
std::string standIn(char letter) {
    const auto code = static_cast<unsigned char>(letter);
    return {startOfStandIns, static_cast<char>(0x80 | code >> 6),
            static_cast<char>(0x80 | (code & 0x3F))};
}

void replace(std::string& text, std::string_view what, std::string_view with) {
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at)) {
        text.replace(at, what.size(), with);
        at += with.size();
    }
}

}  // namespace

bool needsStandIn(std::string_view hostName) {
    return hostName.find_first_of(lettersWithMeaning) != std::string_view::npos;
}

std::string gameName(std::string_view hostName) {
    std::string name(hostName);
    if (!needsStandIn(name)) return name;
    for (const char letter : lettersWithMeaning) replace(name, {&letter, 1}, standIn(letter));
    return name;
}

std::string hostName(std::string_view gameName) {
    std::string name(gameName);
    if (name.find(startOfStandIns) == std::string::npos) return name;
    for (const char letter : lettersWithMeaning) replace(name, standIn(letter), {&letter, 1});
    return name;
}

}  // namespace tessaro
