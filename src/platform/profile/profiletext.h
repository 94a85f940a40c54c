#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/profile/profilelines.h"
#include "platform/text/encoding.h"

namespace tessaro {

/// A section's header. Positions are bytes in the text.
struct ProfileSection {
    std::size_t begin = 0;  ///< of the header's line, with its indent
    std::size_t body = 0;   ///< of the line after the header
    std::string_view name;
};

/// A profile file's bytes made readable, and its parts found where they stand. The rules are in
/// docs/profile-calls.md. 8-bit files are read without copying, since one key of a large file is
/// asked for at a time; UTF-16 is decoded first. The bytes must outlive this object.
class ProfileText {
  public:
    explicit ProfileText(std::string_view bytes) : ProfileText(bytes, detectEncoding(bytes)) {}
    /// Takes the bytes for text in an encoding, whatever they look like.
    ProfileText(std::string_view bytes, Encoding encoding);
    ProfileText(const ProfileText&) = delete;
    ProfileText& operator=(const ProfileText&) = delete;

    Encoding encoding() const { return encoding_; }
    bool wide() const;
    /// What stands before the text.
    std::string_view mark() const { return markOf(encoding_); }
    /// The last byte of a UTF-16 file of odd size, which is no text.
    std::string_view oddByte() const { return oddByte_; }
    /// What lies between: the file's own bytes, or UTF-8 made from UTF-16.
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

    Encoding encoding_;
    std::string decoded_;
    std::string_view text_;
    std::string_view oddByte_;
};

}  // namespace tessaro
