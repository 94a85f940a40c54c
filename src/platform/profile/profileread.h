#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// Reads of a profile file's bytes, in whatever encoding they are. Results are UTF-8.

/// The value of the first line of a key in the first section of that name, without blanks and one
/// pair of quotes round it; nothing if there is none.
std::optional<std::string> profileValue(std::string_view bytes, std::string_view section,
                                        std::string_view key);
/// Names of all sections, in order, repeats included, a NUL after each.
std::string profileSections(std::string_view bytes);
/// Names of all keys of the first section of that name, in the same form; nothing if there is no
/// such section.
std::optional<std::string> profileKeys(std::string_view bytes, std::string_view section);

}  // namespace tessaro
