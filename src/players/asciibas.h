#pragma once
// asciibas: names in look-alike characters, and the characters to compose them from by hand.

#include <string>
#include <string_view>
#include <vector>

namespace tessaro {

/// Decorates a name in one of three styles, 1 to 3. Some characters become several: "j" and "W".
std::string StylizeName(std::string_view name, int style);

/// The rows of the character chart: the decimal code, two blanks and the character, such as
/// "65  A", for the codes of the 8-bit code page in order.
std::vector<std::string> chartRows();

}  // namespace tessaro
