#include "players/copies.h"

#include <charconv>
#include <optional>
#include <vector>

#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"
#include "platform/text/utf8.h"
#include "platform/text/wildcard.h"

namespace tessaro {
namespace {

constexpr std::string_view prefix = "userini";
constexpr std::string_view suffix = ".bak";
constexpr std::size_t mostCopies = 32768;  // as many as the counter tells apart

// The number in a copy's name; nothing for any other name.
std::optional<std::size_t> numberOf(std::string_view name) {
    if (name.size() <= prefix.size() + suffix.size()) return std::nullopt;
    const std::string_view digits =
        name.substr(prefix.size(), name.size() - prefix.size() - suffix.size());
    std::size_t number = mostCopies;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (number >= mostCopies) return std::nullopt;
    // Leading zeros and what else resembles a copy's name show here.
    return sameName(copyName(static_cast<int>(number)), name) ? std::optional(number)
                                                              : std::nullopt;
}

}  // namespace

std::string copyName(int number) {
    return std::string(prefix).append(std::to_string(number)).append(suffix);
}

bool namesOneFile(std::string_view BackupFile) {
    return !BackupFile.empty() && !hasWildcard(BackupFile);
}

Int16 freeCopyNumber(Program& program, std::string_view folder) {
    std::vector<bool> taken(mostCopies);
    for (const std::string& name : program.files.filesIn(folder)) {
        if (const auto number = numberOf(name)) taken[*number] = true;
    }
    Int16 number = 0;
    while (taken[static_cast<std::size_t>(number)]) ++number;
    return number;
}

Copies::Copies(Program& program, std::string folder)
    : program_(program), folder_(std::move(folder)) {
    // What is not listed is asked for.
    attempt([&] {
        for (const std::string& name : program.files.filesIn(folder_))
            names_.insert(lowerCase(name));
    });
}

bool Copies::has(const std::string& BackupFile) const {
    return names_.contains(lowerCase(BackupFile)) ||
           FileExists(program_, folder_ + "\\" + BackupFile) == Yes;
}

}  // namespace tessaro
