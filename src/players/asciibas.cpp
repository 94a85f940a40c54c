#include "players/asciibas.h"

#include <array>

#include "platform/text/codepage.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

struct LookAlike {
    std::string_view character;
    std::array<std::string_view, 3> styles;
};

// The comma before the "j" is part of it, although it shifts the fields behind such a name in the
// list of players.
constexpr LookAlike lookAlikes[] = {
    {"1", {"¹", "¹", "¹"}}, {"2", {"²", "²", "²"}},       {"3", {"³", "³", "³"}},
    {"0", {"Ø", "Ø", "Ø"}}, {"a", {"â", "å", "ä"}},       {"b", {"b", "b", "b"}},
    {"c", {"©", "©", "©"}}, {"d", {"d", "d", "d"}},       {"e", {"ë", "ê", "é"}},
    {"i", {"ì", "ï", "î"}}, {"j", {",j", ",j", ",j"}},    {"n", {"ñ", "ñ", "ñ"}},
    {"o", {"ô", "ð", "õ"}}, {"r", {"®", "®", "®"}},       {"s", {"§", "§", "§"}},
    {"t", {"†", "†", "†"}}, {"u", {"ù", "û", "ü"}},       {"y", {"ÿ", "ÿ", "ÿ"}},
    {"A", {"Å", "Ä", "Ã"}}, {"B", {"ß", "ß", "ß"}},       {"C", {"Ç", "Ç", "Ç"}},
    {"D", {"Ð", "Ð", "Ð"}}, {"E", {"£", "3", "E"}},       {"I", {"Ï", "Î", "Í"}},
    {"N", {"Ñ", "Ñ", "Ñ"}}, {"O", {"Õ", "Õ", "Õ"}},       {"S", {"§", "$", "S"}},
    {"U", {"Û", "Û", "Û"}}, {"W", {"`//", "`//", "`//"}}, {"Y", {"¥", "Ý", "Y"}},
    {"`", {"´", "´", "´"}}, {"!", {"¡", "¡", "¡"}},       {"?", {"¿", "¿", "¿"}},
};

std::string_view replacement(std::string_view character, int style) {
    for (const LookAlike& row : lookAlikes) {
        if (row.character == character) return row.styles.at(static_cast<std::size_t>(style) - 1);
    }
    return {};
}

constexpr int lastCode = 255;
// The chart has no row for this one.
constexpr int codeLeftOut = 0x1E;

std::string chartRow(int code) {
    std::string row = std::to_string(code) + "  ";
    appendCharacter(row, fromCodePage(static_cast<unsigned char>(code)));
    return row;
}

}  // namespace

std::string StylizeName(std::string_view name, int style) {
    std::string stylized;
    for (std::size_t position = 0; position < name.size();) {
        const std::size_t start = position;
        nextCharacter(name, position);
        const std::string_view character = name.substr(start, position - start);
        const std::string_view other = replacement(character, style);
        stylized += other.empty() ? character : other;
    }
    return stylized;
}

std::vector<std::string> chartRows() {
    std::vector<std::string> rows;
    for (int code = 0; code <= lastCode; ++code) {
        if (code != codeLeftOut) rows.push_back(chartRow(code));
    }
    return rows;
}

}  // namespace tessaro
