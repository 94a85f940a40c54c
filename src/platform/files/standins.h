#pragma once

#include <string>
#include <string_view>

namespace tessaro {

/// A name on the host may hold letters that mean something in the game's form: a backslash divides
/// folders, a colon follows a drive, `*` and `?` make a pattern of a name, and a pattern would
/// delete other files with it, `"` ends a name on a command line. There U+F000 and the letter's own
/// code stands in for each, as other bridges between such systems have it, so that the file can
/// still be named and opened. A stand-in that a host name holds by itself is led in by U+F07E:
///
///     a:b        a<U+F03A>b
///     a<U+F03A>b   a<U+F07E><U+F03A>b
///
/// Whether a name on the host reads otherwise in the game's form.
bool needsStandIn(std::string_view hostName);
/// The name in the game's form.
std::string gameName(std::string_view hostName);
/// The way back.
std::string hostName(std::string_view gameName);

/// Appends a part of a path as somebody wrote it: a letter that cannot divide or match there means
/// the name that has it.
void appendWritten(std::string& path, std::string_view part);

}  // namespace tessaro
