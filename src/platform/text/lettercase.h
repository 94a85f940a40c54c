#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessaro {

/// Names match by the lower case of their letters. The system's own tables are left alone: they
/// follow the user's locale, a file's names must not.

/// One character's lower case, for matching names: letters of the scripts Latin, Greek and Cyrillic
/// become what Unicode's simple case folding makes of them, all others stay.
char32_t lowerCase(char32_t character);
/// The same of each character.
std::string lowerCase(std::string_view text);
/// Whether two names are the same but for case.
bool sameName(std::string_view one, std::string_view other);
/// The same for all names that are the same but for case.
std::uint32_t nameHash(std::string_view name);

}  // namespace tessaro
