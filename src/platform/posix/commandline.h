#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessaro {

/// A command line in its parts.
struct CommandLine {
    std::string program;
    std::vector<std::string> arguments;
    bool operator==(const CommandLine&) const = default;
};

/// Splits one text as Windows does for a program that is started with it.
///
/// The program's name ends at the first blank or tab, whatever stands in it: a folder with a blank
/// breaks the line, and quotes do not mend that. In the arguments quotes keep blanks together and
/// may stand inside of a word; `""` within quotes gives a quote and ends them; backslashes count
/// only before a quote, where two give one and an odd one makes the quote a letter:
///
///     C:\System\ucc.exe compress "C:\My Maps\DM-A b.unr"
CommandLine splitCommandLine(std::string_view line);

/// Whether a text is a full path in the game's form, such as `C:\UnrealTournament`.
bool isFullGamePath(std::string_view text);

}  // namespace tessaro
