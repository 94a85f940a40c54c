#pragma once
// The program's help: the box with its contacts, and the pages held inside the program.

#include <optional>
#include <string>
#include <string_view>

#include "core/clsINI.h"
#include "platform/outside/dialogs.h"

namespace tessaro {

/// A help page: the text of `Title` above it, and the end of its address.
struct HelpPage {
    std::string_view title;
    std::string_view page;
};

inline constexpr HelpPage consoleHelp{"Console Commands", ".exe/console.htm"};
inline constexpr HelpPage serverHelp{"Running UT Servers", ".exe/servers.htm"};
inline constexpr HelpPage adminHelp{"Server Admin Help", ".exe/admin.htm"};

/// Where a page lies inside the program, such as
/// `res://C:\Games\Tessaro Tools\tessaro.exe/console.htm`. Blanks stay blanks.
std::string helpAddress(const ProgramFile& program, const HelpPage& page);

/// The name of the file that an address of `helpAddress` means, in lower case. Nothing for an
/// address that leads out of the program's pages.
std::optional<std::string> helpFile(const ProgramFile& program, std::string_view address);

/// The box with contacts and copyright.
void showHelpBox(Dialogs& dialogs);

}  // namespace tessaro
