#pragma once

#include <string>
#include <string_view>

#include "platform/runtime/int16.h"

namespace tessaro {

/// The number that a text stands for, as the run-time library reads it: blanks around it are cut,
/// a sign, decimals, an exponent and "&H" numbers are understood. Raises error 13 if the text is no
/// number (an empty text is none).
double toNumber(std::string_view text);

/// `toNumber`, rounded to even and narrowed to 16 bits. Raises 13 or 6.
Int16 toInt16(std::string_view text);

/// `toNumber`, rounded to even and narrowed to 32 bits. Raises 13 or 6.
int toInteger(std::string_view text);

/// "True" or "False" without regard to case, or a number, of which 0 is false. Raises 13.
bool toBoolean(std::string_view text);

/// Compares a setting's text with a number, as a flag is tested. Raises 13 if it is no number.
bool equalsNumber(std::string_view text, int number);

}  // namespace tessaro
