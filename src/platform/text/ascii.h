#pragma once

namespace tessaro {

/// Whether a byte of UTF-8, or of the code page, is a character of ASCII by itself.
constexpr bool isAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

/// A letter of ASCII in lower or in upper case, and everything else as it is.
constexpr char lowerAscii(char byte) {
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + ('a' - 'A')) : byte;
}
constexpr char upperAscii(char byte) {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - ('a' - 'A')) : byte;
}

/// Whether a byte is a letter of ASCII.
constexpr bool isAsciiLetter(char byte) {
    return lowerAscii(byte) >= 'a' && lowerAscii(byte) <= 'z';
}

}  // namespace tessaro
