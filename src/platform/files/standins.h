#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// A name on the host may hold letters that mean something in the game's form: a backslash divides
/// folders, `*` and `?` make a pattern of a name, and a pattern would delete other files with it,
/// `"` ends a name on a command line. There U+F000 and the letter's own code stands in for each, as
/// other bridges between such systems have it, so that the file can still be named and opened.
bool needsStandIn(std::string_view hostName);
/// The name in the game's form.
std::string gameName(std::string_view hostName);
/// The way back.
std::string hostName(std::string_view gameName);

}  // namespace tessaro
