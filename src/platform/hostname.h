#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// A name on the host may hold a backslash, which in the game's form divides folders. U+F05C stands
/// in for it there, the code that other bridges between such systems use, so that the file can
/// still be named and opened.
std::string gameName(std::string_view hostName);
/// The way back.
std::string hostName(std::string_view gameName);

}  // namespace tessaro
