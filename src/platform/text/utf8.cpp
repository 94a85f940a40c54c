#include "platform/text/utf8.h"

#include <cstdint>
#include <cstring>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/ascii.h"

namespace tessaro {

namespace {

struct Lead {
    std::size_t size;
    char32_t bits;
    char32_t smallest;  // below it the form is longer than needed, which is invalid
};

Lead leadOf(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    if (value < 0x80) return {1, value, 0};
    if (value < 0xC0) return {0, 0, 0};
    if (value < 0xE0) return {2, value & 0x1FU, 0x80};
    if (value < 0xF0) return {3, value & 0x0FU, 0x800};
    return {value < 0xF8 ? std::size_t{4} : 0, value & 0x07U, 0x10000};
}

bool isCharacter(char32_t value) {
    return value <= 0x10FFFF && (value < 0xD800 || value > 0xDFFF);
}

// Bytes of the character at `position`, or 0 if there is none.
std::size_t sizeAt(std::string_view text, std::size_t position, char32_t& character) {
    const Lead lead = leadOf(text[position]);
    if (lead.size == 0 || lead.size > text.size() - position) return 0;
    character = lead.bits;
    for (std::size_t i = 1; i < lead.size; ++i) {
        const auto byte = static_cast<unsigned char>(text[position + i]);
        if ((byte & 0xC0U) != 0x80) return 0;
        character = (character << 6U) | (byte & 0x3FU);
    }
    return character >= lead.smallest && isCharacter(character) ? lead.size : 0;
}

// The byte where the `count`th character after `position` begins, or the text's end.
std::size_t advance(std::string_view text, std::size_t position, std::size_t count) {
    if (count < text.size() - position && isAsciiText(text.substr(position, count)))
        return position + count;
    while (count > 0 && position < text.size()) {
        nextCharacter(text, position);
        --count;
    }
    return position;
}

}  // namespace

char32_t nextCharacter(std::string_view text, std::size_t& position) {
    char32_t character = 0;
    const std::size_t size = sizeAt(text, position, character);
    position += size == 0 ? 1 : size;
    return size == 0 ? replacementCharacter : character;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    const auto addTail = [&](unsigned shift) { add(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0U | (character >> 6U));
        addTail(0);
    } else if (character < 0x10000) {
        add(0xE0U | (character >> 12U));
        addTail(6);
        addTail(0);
    } else {
        add(0xF0U | (character >> 18U));
        addTail(12);
        addTail(6);
        addTail(0);
    }
}

// Eight bytes at a time: the game's files are nearly all ASCII, and each read of a key asks.
std::size_t asciiEnd(std::string_view text, std::size_t position) {
    while (text.size() - position >= sizeof(std::uint64_t)) {
        std::uint64_t block = 0;
        std::memcpy(&block, text.data() + position, sizeof block);
        if ((block & 0x8080808080808080U) != 0) break;
        position += sizeof block;
    }
    while (position < text.size() && isAscii(text[position])) ++position;
    return position;
}

bool isAsciiText(std::string_view text) {
    return asciiEnd(text, 0) == text.size();
}

bool isValidUtf8(std::string_view text) {
    char32_t character = 0;
    std::size_t position = asciiEnd(text, 0);
    while (position < text.size()) {
        const std::size_t size = sizeAt(text, position, character);
        if (size == 0) return false;
        position = asciiEnd(text, position + size);
    }
    return true;
}

std::size_t length(std::string_view text) {
    std::size_t position = asciiEnd(text, 0);
    std::size_t count = position;
    for (; position < text.size(); ++count) nextCharacter(text, position);
    return count;
}

std::string_view left(std::string_view text, std::size_t count) {
    if (text.size() <= count) return text;  // no character is shorter than a byte
    return text.substr(0, advance(text, 0, count));
}

std::string_view right(std::string_view text, std::size_t count) {
    const std::size_t all = length(text);
    return text.substr(advance(text, 0, all > count ? all - count : 0));
}

std::string_view mid(std::string_view text, std::size_t start, std::size_t count) {
    if (start == 0) throw RunTimeError(errors::InvalidProcedureCall);
    return left(text.substr(advance(text, 0, start - 1)), count);
}

std::string_view trimSpaces(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace tessaro
