#include "shell/help.h"

#include "platform/text/utf8.h"

namespace tessaro {
namespace {

std::string start(const ProgramFile& program) {
    return "res://" + program.folder + "\\" + program.name;
}

constexpr std::string_view folderOfPages = ".exe/";

constexpr const char* helpText =
    "Questions and comments: tessaro@ovrin.example\n"
    "Ask us by messenger: OvrinTessaro\n"
    "\n"
    "Open Source for this program is to be made available\n"
    "sometime in the near future (maybe)\n"
    "\n"
    "Copyright (c) Ovrin and members. All rights reserved.";

}  // namespace

std::string helpAddress(const ProgramFile& program, const HelpPage& page) {
    return start(program) + std::string(page.page);
}

std::optional<std::string> helpFile(const ProgramFile& program, std::string_view address) {
    const std::string pages = start(program) + std::string(folderOfPages);
    if (!address.starts_with(pages)) return std::nullopt;
    const std::string_view file = address.substr(pages.size());
    if (file.empty() || file.find_first_of("/\\") != std::string_view::npos) return std::nullopt;
    return lowerCase(file);
}

void showHelpBox(Dialogs& dialogs) {
    dialogs.message({helpText, "Tessaro Help", Buttons::Ok, Icon::Information});
}

}  // namespace tessaro
