#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// One write to a profile file. A missing text deletes the key, a missing key the section.
struct ProfileChange {
    std::string_view section;
    std::optional<std::string_view> key;
    std::optional<std::string_view> text;
};

/// The bytes of a profile file after a change; nothing if they are so already. No byte changes but
/// those of the line, key or section concerned. What does not fit into the file's encoding turns it
/// into UTF-16LE with a mark.
std::optional<std::string> changedProfile(std::string_view bytes, const ProfileChange& change);

}  // namespace tessaro
