#include "editor/boxtext.h"

#include <algorithm>

#include "platform/text/utf8.h"

namespace tessaro {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char16_t strayByte = 0xDC00;

bool isHigh(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

bool isLow(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

// Takes one unit or two. Gives where the next one goes.
char16_t* put(char16_t* place, char32_t character) {
    if (character < 0x10000) {
        *place++ = static_cast<char16_t>(character);
        return place;
    }
    *place++ = static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U));
    *place++ = static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FFU));
    return place;
}

// The next character, or half of a pair. `position` moves behind it.
char32_t nextUnit(std::u16string_view text, std::size_t& position) {
    const char32_t first = text[position++];
    if (!isHigh(first) || position == text.size() || !isLow(text[position])) return first;
    const char32_t low = text[position++];
    return 0x10000 + ((first - 0xD800) << 10U) + (low - 0xDC00);
}

// A byte that begins no character. A UTF-16 file has none but in half a pair, whose code is then
// spread over three bytes.
char16_t nextStray(std::string_view text, std::size_t& position, Encoding encoding) {
    const auto bits = [&](std::size_t at, unsigned mask) {
        return static_cast<unsigned char>(text[at]) & mask;
    };
    if (!holdsPairs(encoding)) return static_cast<char16_t>(strayByte + bits(position++, 0xFF));
    const unsigned half =
        bits(position, 0x0F) << 12U | bits(position + 1, 0x3F) << 6U | bits(position + 2, 0x3F);
    position += 3;
    return static_cast<char16_t>(half);
}

// Without branches, so that a block of units is looked at in one go.
bool isLineEnd(char16_t unit) {
    const unsigned usual =
        static_cast<unsigned>(unit == u'\n') | static_cast<unsigned>(unit == u'\r');
    // What the box uses itself to tell lines apart.
    const unsigned inner =
        static_cast<unsigned>(unit == 0x2029) | static_cast<unsigned>((unit & 0xFFFEU) == 0xFDD0);
    return (usual | inner) != 0;
}

constexpr std::size_t blockSize = 16;

bool hasLineEnd(const char16_t* block) {
    unsigned found = 0;
    for (std::size_t i = 0; i < blockSize; ++i) found |= static_cast<unsigned>(isLineEnd(block[i]));
    return found != 0;
}

}  // namespace

bool holdsPairs(Encoding encoding) {
    return encoding == Encoding::Utf16LittleEndian || encoding == Encoding::Utf16BigEndian;
}

std::u16string toBox(std::string_view text, Encoding encoding) {
    std::u16string shown(text.size(), u'\0');  // nothing takes more units than bytes
    char16_t* place = shown.data();
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t plain = asciiEnd(text, position);
        place = std::copy(text.data() + position, text.data() + plain, place);
        position = plain;
        if (position == text.size()) break;
        std::size_t next = position;
        const char32_t character = nextCharacter(text, next);
        if (next == position + 1) {
            *place++ = nextStray(text, position, encoding);
        } else {
            place = put(place, character);
            position = next;
        }
    }
    shown.resize(static_cast<std::size_t>(place - shown.data()));
    return shown;
}

std::string fromBox(std::u16string_view text, Encoding encoding) {
    std::string kept;
    kept.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t unit = nextUnit(text, position);
        if (unit >= strayByte + 0x80U && unit <= strayByte + 0xFFU && !holdsPairs(encoding)) {
            kept += static_cast<char>(unit - strayByte);
        } else {
            appendCharacter(kept, unit);
        }
    }
    return kept;
}

std::string readable(std::u16string_view text) {
    std::string characters;
    characters.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t unit = nextUnit(text, position);
        appendCharacter(characters, isHigh(unit) || isLow(unit) ? replacement : unit);
    }
    return characters;
}

std::size_t nextLineEnd(std::u16string_view text, std::size_t position) {
    const auto* from = text.data() + position;
    const auto* end = text.data() + text.size();
    while (end - from >= std::ptrdiff_t{blockSize} && !hasLineEnd(from)) from += blockSize;
    return static_cast<std::size_t>(std::find_if(from, end, isLineEnd) - text.data());
}

std::size_t lineEndAt(std::u16string_view text, std::size_t position) {
    if (position >= text.size() || !isLineEnd(text[position])) return 0;
    return text.substr(position).starts_with(u"\r\n") ? 2 : 1;
}

std::size_t boxPosition(std::string_view text, std::size_t characters) {
    std::size_t units = 0;
    char32_t before = 0;
    for (std::size_t position = 0; characters > 0 && position < text.size(); --characters) {
        const char32_t character = nextCharacter(text, position);
        if (before != U'\r' || character != U'\n') units += character < 0x10000 ? 1 : 2;
        before = character;
    }
    return units;
}

}  // namespace tessaro
