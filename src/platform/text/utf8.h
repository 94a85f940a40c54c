#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessaro {

/// Texts are UTF-8 in memory; everything here counts characters (code points), not bytes. A byte
/// that belongs to no character counts as one.

/// What stands for a byte that belongs to no character.
inline constexpr char32_t replacementCharacter = 0xFFFD;

/// Reads the character at byte `position` and moves `position` behind it. An invalid byte gives
/// the replacement character and moves by one.
char32_t nextCharacter(std::string_view text, std::size_t& position);
/// Takes any code up to U+1FFFFF; what is no character gives bytes that are no valid UTF-8.
void appendCharacter(std::string& text, char32_t character);
/// Whether every byte belongs to a character.
bool isValidUtf8(std::string_view text);
/// Whether every character is one byte.
bool isAsciiText(std::string_view text);
/// The byte at `position` or behind it where the first character is that is not ASCII, or the
/// text's end.
std::size_t asciiEnd(std::string_view text, std::size_t position);

/// Number of characters.
std::size_t length(std::string_view text);
/// The first `count` characters, or the whole text if it is shorter.
std::string_view left(std::string_view text, std::size_t count);
/// The last `count` characters, or the whole text if it is shorter.
std::string_view right(std::string_view text, std::size_t count);
/// `count` characters from the `start`th on, counted from 1. Raises error 5 for a start of 0.
std::string_view mid(std::string_view text, std::size_t start, std::size_t count);

/// Cuts spaces (only spaces) at both ends.
std::string_view trimSpaces(std::string_view text);

}  // namespace tessaro
