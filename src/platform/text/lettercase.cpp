#include "platform/text/lettercase.h"

#include "platform/text/ascii.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

bool within(char32_t character, char32_t first, char32_t last) {
    return character >= first && character <= last;
}

char32_t lowerLatin1(char32_t character) {
    const bool upper = within(character, 0xC0, 0xDE) && character != 0xD7;  // D7 is the times sign
    return upper ? character + 0x20 : character;
}

// Pairs of neighbours, upper case first, on even or on odd codes.
char32_t lowerPair(char32_t character, bool upperIsEven) {
    return (character % 2 == 0) == upperIsEven ? character + 1 : character;
}

char32_t lowerLatinExtended(char32_t character) {
    if (character == 0x178) {
        return 0xFF;
    }
    // The dotted I and the dotless i belong to different letters in different languages; the kra
    // and the long s have no upper case of their own.
    if (within(character, 0x130, 0x131) || character == 0x138 || character == 0x149 ||
        character == 0x17F) {
        return character;
    }
    const bool odd = within(character, 0x139, 0x148) || within(character, 0x179, 0x17E);
    return lowerPair(character, !odd);
}

char32_t lowerGreek(char32_t character) {
    switch (character) {
        case 0x386:
            return 0x3AC;
        case 0x388:
        case 0x389:
        case 0x38A:
            return character + 0x25;
        case 0x38C:
            return 0x3CC;
        case 0x38E:
        case 0x38F:
            return character + 0x3F;
        default:
            return within(character, 0x391, 0x3AB) && character != 0x3A2 ? character + 0x20
                                                                         : character;
    }
}

char32_t lowerCyrillic(char32_t character) {
    if (within(character, 0x400, 0x40F)) {
        return character + 0x50;
    }
    if (within(character, 0x410, 0x42F)) {
        return character + 0x20;
    }
    if (within(character, 0x460, 0x481) || within(character, 0x48A, 0x4BF) ||
        within(character, 0x4D0, 0x52F)) {
        return lowerPair(character, true);
    }
    if (character == 0x4C0) {
        return 0x4CF;
    }
    return within(character, 0x4C1, 0x4CE) ? lowerPair(character, false) : character;
}

}  // namespace

char32_t lowerCase(char32_t character) {
    if (character < 0x80) {
        return static_cast<unsigned char>(lowerAscii(static_cast<char>(character)));
    }
    if (character < 0x100) {
        return lowerLatin1(character);
    }
    if (character < 0x180) {
        return lowerLatinExtended(character);
    }
    if (within(character, 0x370, 0x3FF)) {
        return lowerGreek(character);
    }
    return within(character, 0x400, 0x52F) ? lowerCyrillic(character) : character;
}

std::string lowerCase(std::string_view text) {
    std::string lower;
    lower.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const std::size_t start = position;
        const char32_t character = nextCharacter(text, position);
        if (character == replacementCharacter) {
            lower += text.substr(start, position - start);  // an invalid byte stays what it is
        } else {
            appendCharacter(lower, lowerCase(character));
        }
    }
    return lower;
}

bool sameName(std::string_view one, std::string_view other) {
    std::size_t at = 0;
    while (at < one.size() && at < other.size() && isAscii(one[at]) && isAscii(other[at])) {
        if (lowerAscii(one[at]) != lowerAscii(other[at])) return false;
        ++at;
    }
    if (at == one.size() || at == other.size()) {
        return one.size() == other.size();
    }
    return lowerCase(one.substr(at)) == lowerCase(other.substr(at));
}

}  // namespace tessaro
