#pragma once
// Texts on their way between a file and the text box, which holds UTF-16 and knows one kind of line
// end only.

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/text/encoding.h"

namespace tessaro {

/// Whether a file of this encoding is made of 16-bit units.
bool holdsPairs(Encoding encoding);

/// What `decodeText` made of a file's bytes, as the box shows it. Nothing is lost: half of a
/// surrogate pair stands for itself, and in a file of 8-bit units a byte that is part of no
/// character is shown as U+DC00 and its value.
std::u16string toBox(std::string_view text, Encoding encoding);

/// The way back, to what `encodePiece` takes.
std::string fromBox(std::u16string_view text, Encoding encoding);

/// A text of the box in valid UTF-8: what is no character becomes U+FFFD.
std::string readable(std::u16string_view text);

/// Where the first line end from `position` on begins, or the text's end.
std::size_t nextLineEnd(std::u16string_view text, std::size_t position);

/// The size of the line end at `position`: 2 for CR LF, 1 for any other that the box takes for one,
/// 0 where there is none.
std::size_t lineEndAt(std::u16string_view text, std::size_t position);

/// Where in the box the character stands that has `characters` others before it in `text`, which
/// is valid UTF-8. The box counts UTF-16 units, and a CR LF once.
std::size_t boxPosition(std::string_view text, std::size_t characters);

}  // namespace tessaro
