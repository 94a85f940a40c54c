#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/profile/profilelines.h"

namespace tessaro {

/// How the bytes of a profile text stand for letters outside ASCII.
enum class Letters { CodePage, Utf8 };

/// A section's header. Positions are bytes in the text.
struct ProfileSection {
    std::size_t begin = 0;  ///< of the header's line, with its indent
    std::size_t body = 0;   ///< of the line after the header
    std::string_view name;
};

/// Finds the parts of a profile file's text where they stand, without copying or changing it. The
/// rules are in docs/profile-calls.md. The text must outlive this object.
class ProfileText {
  public:
    ProfileText(std::string_view text, Letters letters) : text_(text), letters_(letters) {}

    std::string_view text() const { return text_; }
    std::size_t position(std::string_view part) const {
        return static_cast<std::size_t>(part.data() - text_.data());
    }
    /// UTF-8 of a part.
    std::string decoded(std::string_view part) const;

    /// The first section whose header stands at or after the beginning of a line.
    std::optional<ProfileSection> sectionFrom(std::size_t position) const;
    /// The first section of that name.
    std::optional<ProfileSection> findSection(std::string_view name) const;
    ProfileLines lines(const ProfileSection& section) const { return {text_, section.body}; }
    /// The first line of that key in a section.
    std::optional<ProfileKey> findKey(const ProfileSection& section, std::string_view name) const;

  private:
    bool matches(std::string_view part, std::string_view name) const;

    std::string_view text_;
    Letters letters_;
};

}  // namespace tessaro
