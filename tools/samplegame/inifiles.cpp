#include "tools/samplegame/inifiles.h"

#include <charconv>
#include <string_view>

#include "tools/samplegame/initexts.h"

namespace tessaro::sample {

namespace {

int takeNumber(std::string_view& text) {
    int number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    return number;
}

void appendNumbered(std::string& out, std::string_view pattern, int number) {
    for (const char letter : pattern) {
        if (letter == '#') {
            out += std::to_string(number);
        } else {
            out += letter;
        }
    }
    out += "\r\n";
}

void appendLine(std::string& out, std::string_view line) {
    if (!line.starts_with('%')) {
        out.append(line).append("\r\n");
        return;
    }
    line.remove_prefix(1);
    const int first = takeNumber(line);
    const int last = takeNumber(line);
    for (int number = first; number <= last; ++number) appendNumbered(out, line, number);
}

std::string expanded(std::string_view text) {
    std::string out;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        appendLine(out, text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    return out;
}

}  // namespace

std::string unrealTournamentIni() {
    return expanded(engineText()) + expanded(driverText()) + expanded(gameText()) +
           expanded(usedText());
}

std::string userIni() {
    return expanded(userText());
}

std::string defaultIni() {
    return expanded(engineText()) + expanded(gameText());
}

std::string defUserIni() {
    constexpr std::string_view before = "\r\nZ=";
    std::string text = userIni();
    return text.insert(text.find(before) + before.size(), "\r\nO=");
}

}  // namespace tessaro::sample
