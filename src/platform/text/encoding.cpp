#include "platform/text/encoding.h"

#include "platform/text/codepage.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view littleEndianMark = "\xFF\xFE";
constexpr std::string_view bigEndianMark = "\xFE\xFF";

// In memory, half of a surrogate pair is held as the three bytes that its code would have, and the
// last byte of a UTF-16 file of odd size as the four bytes of a code behind the last character.
// Neither is valid UTF-8, so neither can be mistaken for a character.
constexpr char32_t oddByte = 0x110000;

bool isSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDFFF;
}

bool isPair(char32_t high, char32_t low) {
    return high >= 0xD800 && high < 0xDC00 && low >= 0xDC00 && low <= 0xDFFF;
}

char32_t tailBits(char byte) {
    return static_cast<unsigned char>(byte) & 0x3FU;
}

bool isTail(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80;
}

bool startsWithSurrogate(std::string_view text) {
    return text.size() >= 3 && text[0] == '\xED' && static_cast<unsigned char>(text[1]) >= 0xA0 &&
           isTail(text[1]) && isTail(text[2]);
}

bool startsWithOddByte(std::string_view text) {
    return text.size() >= 4 && text.starts_with("\xF4\x90") && isTail(text[2]) &&
           tailBits(text[2]) < 4 && isTail(text[3]);
}

// The next character, surrogate half or odd byte. A stray byte, which no decoding of ours makes but
// for a damaged UTF-8 file, is taken for a letter of the code page rather than lost.
char32_t nextKept(std::string_view text, std::size_t& position) {
    const std::string_view rest = text.substr(position);
    if (startsWithSurrogate(rest)) {
        position += 3;
        return 0xD000U | (tailBits(rest[1]) << 6U) | tailBits(rest[2]);
    }
    if (startsWithOddByte(rest)) {
        position += 4;
        return oddByte | (tailBits(rest[2]) << 6U) | tailBits(rest[3]);
    }
    const std::size_t start = position;
    const char32_t character = nextCharacter(text, position);
    const bool stray = position == start + 1;
    return stray ? fromCodePage(static_cast<unsigned char>(text[start])) : character;
}

std::string decodeCodePage(std::string_view bytes) {
    if (isAsciiText(bytes)) return std::string(bytes);
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    for (const char byte : bytes)
        appendCharacter(text, fromCodePage(static_cast<unsigned char>(byte)));
    return text;
}

std::optional<std::string> encodeCodePage(std::string_view text) {
    if (isAsciiText(text)) return std::string(text);
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t position = 0; position < text.size();) {
        const auto code = toCodePage(nextKept(text, position));
        if (!code) return std::nullopt;
        bytes += static_cast<char>(*code);
    }
    return bytes;
}

class Utf16 {
  public:
    explicit Utf16(Encoding encoding) : littleEndian_(encoding == Encoding::Utf16LittleEndian) {}

    char32_t unit(std::string_view bytes, std::size_t position) const {
        const auto first = static_cast<unsigned char>(bytes[position]);
        const auto second = static_cast<unsigned char>(bytes[position + 1]);
        return littleEndian_ ? first | (char32_t{second} << 8U) : second | (char32_t{first} << 8U);
    }

    void append(std::string& bytes, char32_t character) const {
        if (character < 0x10000) return appendUnit(bytes, character);
        appendUnit(bytes, 0xD800 + ((character - 0x10000) >> 10U));
        appendUnit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FFU));
    }

  private:
    void appendUnit(std::string& bytes, char32_t unit) const {
        const auto low = static_cast<char>(unit & 0xFFU);
        const auto high = static_cast<char>(unit >> 8U);
        bytes += littleEndian_ ? low : high;
        bytes += littleEndian_ ? high : low;
    }

    bool littleEndian_;
};

std::string decodeUtf16(std::string_view bytes, const Utf16& utf16) {
    std::string text;
    text.reserve(bytes.size());
    std::size_t position = 0;
    while (bytes.size() - position >= 2) {
        char32_t character = utf16.unit(bytes, position);
        position += 2;
        if (isSurrogate(character) && bytes.size() - position >= 2 &&
            isPair(character, utf16.unit(bytes, position))) {
            const char32_t low = utf16.unit(bytes, position);
            character = 0x10000 + ((character - 0xD800) << 10U) + (low - 0xDC00);
            position += 2;
        }
        appendCharacter(text, character);
    }
    if (position < bytes.size())
        appendCharacter(text, oddByte | static_cast<unsigned char>(bytes[position]));
    return text;
}

std::string encodeUtf16(std::string_view text, const Utf16& utf16) {
    std::string bytes;
    std::string odd;  // stays last: inside it would shift every character behind it
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = nextKept(text, position);
        if (character >= oddByte) {
            odd += static_cast<char>(character & 0xFFU);
        } else {
            utf16.append(bytes, character);
        }
    }
    return bytes + odd;
}

}  // namespace

Encoding detectEncoding(std::string_view bytes) {
    if (bytes.starts_with(littleEndianMark)) return Encoding::Utf16LittleEndian;
    if (bytes.starts_with(bigEndianMark)) return Encoding::Utf16BigEndian;
    if (bytes.starts_with(utf8Mark)) return Encoding::Utf8Mark;
    const bool letters = !isAsciiText(bytes);
    return letters && isValidUtf8(bytes) ? Encoding::Utf8 : Encoding::CodePage;
}

std::string_view markOf(Encoding encoding) {
    switch (encoding) {
        case Encoding::Utf8Mark:
            return utf8Mark;
        case Encoding::Utf16LittleEndian:
            return littleEndianMark;
        case Encoding::Utf16BigEndian:
            return bigEndianMark;
        case Encoding::CodePage:
        case Encoding::Utf8:
            break;
    }
    return {};
}

std::string wholeCharacters(std::string_view text) {
    if (isValidUtf8(text)) return std::string(text);
    const Utf16 utf16(Encoding::Utf16LittleEndian);
    std::string bytes;
    for (std::size_t position = 0; position < text.size();) {
        const char32_t character = nextKept(text, position);
        if (character < oddByte) utf16.append(bytes, character);
    }
    return decodeUtf16(bytes, utf16);
}

std::string decodeText(std::string_view bytes, Encoding encoding) {
    if (bytes.starts_with(markOf(encoding))) bytes.remove_prefix(markOf(encoding).size());
    switch (encoding) {
        case Encoding::CodePage:
            return decodeCodePage(bytes);
        case Encoding::Utf16LittleEndian:
        case Encoding::Utf16BigEndian:
            return decodeUtf16(bytes, Utf16(encoding));
        case Encoding::Utf8:
        case Encoding::Utf8Mark:
            break;
    }
    return std::string(bytes);
}

std::optional<std::string> encodePiece(std::string_view text, Encoding encoding) {
    switch (encoding) {
        case Encoding::CodePage:
            return encodeCodePage(text);
        case Encoding::Utf16LittleEndian:
        case Encoding::Utf16BigEndian:
            return encodeUtf16(text, Utf16(encoding));
        case Encoding::Utf8:
            // One invalid byte would make the whole file count as code page text.
            return isValidUtf8(text) ? std::optional(std::string(text)) : std::nullopt;
        case Encoding::Utf8Mark:
            break;
    }
    return std::string(text);
}

std::optional<std::string> encodeText(std::string_view text, Encoding encoding) {
    auto bytes = encodePiece(text, encoding);
    if (!bytes) return std::nullopt;
    bytes->insert(0, markOf(encoding));
    const bool readsBack = isAsciiText(*bytes) || detectEncoding(*bytes) == encoding;
    return readsBack ? std::move(bytes) : std::nullopt;
}

std::string encodeOrWiden(std::string_view text, Encoding encoding) {
    if (auto bytes = encodeText(text, encoding)) return *std::move(bytes);
    return *encodeText(text, Encoding::Utf16LittleEndian);
}

}  // namespace tessaro
