// Random files and random changes, compared with a plain reading of the rules: cut the file into
// lines, look at them one after the other, put them together again.

#include <gtest/gtest.h>

#include <cctype>
#include <random>
#include <vector>

#include "platform/profile/profileedit.h"
#include "support/profilereads.h"

namespace tessaro {
namespace {

using test::profileValue;

using Found = std::optional<std::string>;
using Lines = std::vector<std::string>;  // each with its end

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    std::size_t below(std::size_t count) { return engine_() % count; }
    std::string oneOf(const std::vector<std::string>& choices) {
        return choices[below(choices.size())];
    }

  private:
    std::mt19937 engine_;
};

Lines cut(const std::string& text) {
    Lines lines;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        line += text[i];
        const bool inside = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (!inside && (text[i] == '\r' || text[i] == '\n')) {
            lines.push_back(line);
            line.clear();
        }
    }
    if (!line.empty()) {
        lines.push_back(line);
    }
    return lines;
}

std::string joined(const Lines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line;
    }
    return text;
}

std::string stripped(const std::string& text, const char* what = " \t\v\r\n") {
    const auto first = text.find_first_not_of(what);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(what) - first + 1);
}

std::string lower(std::string text) {
    for (char& letter : text) {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    return text;
}

bool isHeader(const std::string& line) {
    return stripped(line).substr(0, 1) == "[";
}

std::string headerName(const std::string& line) {
    const std::string text = stripped(line).substr(1);
    return lower(stripped(text.substr(0, text.find(']'))));
}

bool isKey(const std::string& line) {
    return !isHeader(line) && stripped(line).substr(0, 1) != ";" &&
           line.find('=') != std::string::npos;
}

std::string keyName(const std::string& line) {
    return lower(stripped(line.substr(0, line.find('='))));
}

std::size_t findHeader(const Lines& lines, const std::string& section) {
    std::size_t at = 0;
    while (at < lines.size() && !(isHeader(lines[at]) && headerName(lines[at]) == lower(section))) {
        ++at;
    }
    return at;
}

std::size_t sectionEnd(const Lines& lines, std::size_t header) {
    std::size_t at = header + 1;
    while (at < lines.size() && !isHeader(lines[at])) {
        ++at;
    }
    return std::min(at, lines.size());
}

std::size_t findKey(const Lines& lines, std::size_t header, const std::string& key) {
    for (std::size_t at = header + 1; at < sectionEnd(lines, header); ++at) {
        if (isKey(lines[at]) && keyName(lines[at]) == lower(key)) {
            return at;
        }
    }
    return lines.size();
}

Found expectedValue(const std::string& text, const std::string& section, const std::string& key) {
    const Lines lines = cut(text);
    const std::size_t line = findKey(lines, findHeader(lines, section), key);
    if (line == lines.size()) {
        return std::nullopt;
    }
    return stripped(lines[line].substr(lines[line].find('=') + 1));
}

std::string firstLineEnd(const Lines& lines) {
    const std::string first = lines.empty() ? "" : lines.front();
    const auto end = first.find_first_of("\r\n");
    return end == std::string::npos ? "\r\n" : first.substr(end);
}

std::string withValue(const std::string& line, const std::string& value) {
    const auto after = line.find('=') + 1;
    const auto first = std::min(line.find_first_not_of(" \t\v", after), line.size());
    const std::string old = stripped(line.substr(after));
    const auto begin = old.empty() ? line.find_last_not_of("\r\n") + 1 : first;
    return line.substr(0, begin) + value + line.substr(begin + old.size());
}

void addLine(Lines& lines, std::size_t at, const std::string& line, const std::string& end) {
    if (at > 0 && lines[at - 1].find_last_of("\r\n") == std::string::npos) {
        lines[at - 1] += end;
    }
    lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), line + end);
}

std::string expectedWrite(const std::string& text, const std::string& section,
                          const std::string& key, const std::string& value) {
    Lines lines = cut(text);
    const std::string end = firstLineEnd(lines);
    const std::size_t header = findHeader(lines, section);
    if (header == lines.size()) {
        addLine(lines, lines.size(), "[" + section + "]", end);
        addLine(lines, lines.size(), key + "=" + value, end);
        return joined(lines);
    }
    if (const std::size_t line = findKey(lines, header, key); line < lines.size()) {
        lines[line] = withValue(lines[line], value);
        return joined(lines);
    }
    std::size_t last = header;
    for (std::size_t at = header + 1; at < sectionEnd(lines, header); ++at) {
        last = isKey(lines[at]) ? at : last;
    }
    addLine(lines, last + 1, key + "=" + value, end);
    return joined(lines);
}

std::string expectedDeletion(const std::string& text, const std::string& section,
                             const Found& key) {
    Lines lines = cut(text);
    const std::size_t header = findHeader(lines, section);
    if (header == lines.size()) {
        return text;
    }
    const std::size_t begin = key ? findKey(lines, header, *key) : header;
    const std::size_t end = key ? std::min(begin + 1, lines.size()) : sectionEnd(lines, header);
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(begin),
                lines.begin() + static_cast<std::ptrdiff_t>(end));
    return joined(lines);
}

const std::vector<std::string> names{"a", "A", "b", "Ab", "a b", ""};

std::string randomText(Dice& dice) {
    static const std::vector<std::string> parts{
        "[",    "]",       "=",    ";",   " ",
        "\t",   "\v",      "\r",   "\n",  "\r\n",
        "\r\n", "\n",      "a",    "A",   "b",
        "Ab",   "a b",     "[a]",  "[b]", "a=",
        "b=1",  "\n[a]\n", "\na=", "#",   std::string(1, '\0')};
    std::string text;
    for (std::size_t count = dice.below(24); count > 0; --count) {
        text += dice.oneOf(parts);
    }
    return text;
}

TEST(ProfileRandom, ReadsAsAPlainReadingOfTheLinesDoes) {
    Dice dice(1);
    for (int round = 0; round < 4000; ++round) {
        const std::string text = randomText(dice);
        const std::string section = dice.oneOf(names);
        const std::string key = dice.oneOf(names);
        ASSERT_EQ(profileValue(text, section, key), expectedValue(text, section, key))
            << testing::PrintToString(text) << " [" << section << "] " << key;
    }
}

TEST(ProfileRandom, WritesAsAPlainWorkOnTheLinesDoes) {
    Dice dice(2);
    for (int round = 0; round < 4000; ++round) {
        const std::string text = randomText(dice);
        const std::string section = dice.oneOf(names);
        const std::string key = dice.oneOf(names);
        const std::string value = dice.oneOf({"", "x", "a=b", "[a]", ";", "long value"});
        const auto result = changedProfile(text, {section, key, value});
        ASSERT_EQ(result.value_or(text), expectedWrite(text, section, key, value))
            << testing::PrintToString(text) << " [" << section << "] " << key << "=" << value;
        ASSERT_NE(result, text) << "a change that changes nothing";
    }
}

TEST(ProfileRandom, WhatWasWrittenReadsBack) {
    Dice dice(3);
    for (int round = 0; round < 2000; ++round) {
        const std::string text = randomText(dice);
        const std::string value = dice.oneOf({"x", "é", "Ł", "Ã©", "\xF0\x9F\x8E\xAE", "漢 a"});
        const std::string mark = dice.oneOf({"", "", "\xEF\xBB\xBF", "; \xE9\n", "; \xC3\xA9\n"});
        const std::string bytes = changedProfile(mark + text, {"S", "k", value}).value();
        ASSERT_EQ(profileValue(bytes, "S", "k"), value) << testing::PrintToString(mark + text);
        ASSERT_EQ(changedProfile(bytes, {"S", "k", value}), std::nullopt);
    }
}

TEST(ProfileRandom, DeletesAsAPlainWorkOnTheLinesDoes) {
    Dice dice(4);
    for (int round = 0; round < 4000; ++round) {
        const std::string text = randomText(dice);
        const std::string section = dice.oneOf(names);
        const Found key = dice.below(2) == 0 ? Found() : Found(dice.oneOf(names));
        const auto result = changedProfile(text, {section, key, std::nullopt});
        ASSERT_EQ(result.value_or(text), expectedDeletion(text, section, key))
            << testing::PrintToString(text) << " [" << section << "] " << key.value_or("(all)");
    }
}

}  // namespace
}  // namespace tessaro
