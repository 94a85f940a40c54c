#pragma once

#include <string>
#include <string_view>

#include "platform/profile/profiletext.h"
#include "platform/text/encoding.h"

namespace tessaro {

/// A profile file's bytes made readable as text. 8-bit files are read where they stand, since one
/// key of a large file is asked for at a time; UTF-16 is decoded first. The bytes must outlive this
/// object.
class ProfileBytes {
  public:
    explicit ProfileBytes(std::string_view bytes);
    ProfileBytes(const ProfileBytes&) = delete;
    ProfileBytes& operator=(const ProfileBytes&) = delete;

    Encoding encoding() const { return encoding_; }
    bool wide() const;
    /// What stands before the text.
    std::string_view mark() const { return markOf(encoding_); }
    /// The last byte of a UTF-16 file of odd size, which is no text.
    std::string_view oddByte() const { return oddByte_; }
    ProfileText text() const;

  private:
    Encoding encoding_;
    std::string_view bytes_;  // without mark and odd byte
    std::string_view oddByte_;
    std::string decoded_;
};

}  // namespace tessaro
