#include "platform/files/standins.h"

#include <algorithm>
#include <array>

namespace tessaro {

namespace {

constexpr std::string_view lettersWithMeaning = "\\:*?\"";
constexpr char leadIn = '~';

constexpr std::size_t standInSize = 3;
constexpr char startOfStandIns = '\xEF';

constexpr std::array<bool, 256> tableOf(std::string_view letters) {
    std::array<bool, 256> table{};
    for (const char letter : letters) table[static_cast<unsigned char>(letter)] = true;
    return table;
}

// Each letter of each name in a large folder is looked at.
constexpr auto meanings = tableOf(lettersWithMeaning);

bool hasMeaning(char letter) {
    return meanings[static_cast<unsigned char>(letter)];
}

// U+F000 and the letter's own code, in UTF-8.
std::string standIn(char letter) {
    const auto code = static_cast<unsigned char>(letter);
    return {startOfStandIns, static_cast<char>(0x80 | code >> 6),
            static_cast<char>(0x80 | (code & 0x3F))};
}

// The letter whose stand-in a text begins with, 0 if it begins otherwise.
char letterAt(std::string_view text) {
    if (text.size() < standInSize || text.front() != startOfStandIns) return 0;
    const auto code = (static_cast<unsigned char>(text[1]) & 0x03U) << 6U |
                      (static_cast<unsigned char>(text[2]) & 0x3FU);
    const auto letter = static_cast<char>(code);
    const bool ours = (hasMeaning(letter) || letter == leadIn) && text.starts_with(standIn(letter));
    return ours ? letter : '\0';
}

void move(std::string_view& from, std::size_t size, std::string& to) {
    to.append(from.substr(0, size));
    from.remove_prefix(size);
}

}  // namespace

bool needsStandIn(std::string_view hostName) {
    return std::any_of(hostName.begin(), hostName.end(),
                       [](char letter) { return hasMeaning(letter) || letter == startOfStandIns; });
}

std::string gameName(std::string_view hostName) {
    if (!needsStandIn(hostName)) return std::string(hostName);
    std::string name;
    while (!hostName.empty()) {
        if (letterAt(hostName) != 0) {
            name += standIn(leadIn);
            move(hostName, standInSize, name);
        } else if (hasMeaning(hostName.front())) {
            name += standIn(hostName.front());
            hostName.remove_prefix(1);
        } else {
            move(hostName, 1, name);
        }
    }
    return name;
}

std::string hostName(std::string_view gameName) {
    if (gameName.find(startOfStandIns) == std::string_view::npos) return std::string(gameName);
    std::string name;
    while (!gameName.empty()) {
        const char letter = letterAt(gameName);
        if (letter == leadIn && letterAt(gameName.substr(standInSize)) != 0) {
            gameName.remove_prefix(standInSize);
            move(gameName, standInSize, name);
        } else if (hasMeaning(letter)) {
            name += letter;
            gameName.remove_prefix(standInSize);
        } else {
            move(gameName, 1, name);
        }
    }
    return name;
}

void appendWritten(std::string& path, std::string_view part) {
    if (std::none_of(part.begin(), part.end(), hasMeaning)) {
        path += part;
        return;
    }
    for (const char letter : part) hasMeaning(letter) ? path += standIn(letter) : path += letter;
}

}  // namespace tessaro
