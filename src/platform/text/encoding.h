#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// How a text file holds its characters. The game's files are met in all of these; each keeps
/// what it has.
enum class Encoding { CodePage, Utf8, Utf8Mark, Utf16LittleEndian, Utf16BigEndian };

/// Tells a file's encoding from its mark, or, without one, from whether its letters outside ASCII
/// are valid UTF-8 (the game's current patch writes those). Plain ASCII counts as `CodePage`.
Encoding detectEncoding(std::string_view bytes);

/// The byte order mark that a file of this encoding begins with; empty for the two without.
std::string_view markOf(Encoding encoding);

/// A text as it would come back from a file: a stray byte is taken for a letter of the code page,
/// two halves of a pair make one character, and the odd byte of a UTF-16 file goes.
std::string wholeCharacters(std::string_view text);

/// Bytes of a file (with its mark) to UTF-8. Loses nothing: what is no character in the encoding
/// comes back from `encodeText` as the same bytes.
std::string decodeText(std::string_view bytes, Encoding encoding);

/// UTF-8 to a file's bytes with its mark; nothing if the text does not fit into the encoding (a
/// letter outside code page 1252, or code page bytes that would later be taken for UTF-8).
std::optional<std::string> encodeText(std::string_view text, Encoding encoding);

/// The same for a piece of a file: without a mark, and without a look at how the piece alone would
/// be taken.
std::optional<std::string> encodePiece(std::string_view text, Encoding encoding);

/// UTF-8 to a file's bytes in the encoding it had, or, if the text does not fit, in UTF-16LE with
/// a mark, which the game reads.
std::string encodeOrWiden(std::string_view text, Encoding encoding);

}  // namespace tessaro
