#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/files.h"
#include "platform/profile/profilereader.h"

namespace tessaro {

/// The two calls through which every profile-style text file is read and written:
///
///     [section]
///     key=value
///
/// They behave byte by byte as the Windows calls of these names do, see docs/profile-calls.md.
/// What a read found is remembered as long as the file is certain to be the same.
class ProfileCalls {
  public:
    explicit ProfileCalls(Files& files) : files_(files) {}

    /// What the call leaves in a buffer of `size` characters, without its closing NUL. A missing
    /// section or key argument asks for a listing, in which a NUL follows every name; a value is
    /// cut to `size` - 1 characters, a listing that does not fit to `size` - 2. Never raises: a
    /// file that cannot be read gives the default.
    std::string getPrivateProfileString(std::optional<std::string_view> section,
                                        std::optional<std::string_view> key,
                                        std::string_view defaultText, std::size_t size,
                                        std::string_view file);

    /// For a read of several steps.
    Files::OneMoment oneMoment() { return Files::OneMoment(files_); }

    /// Writes one key; a missing text deletes the key, a missing key the section. Tells whether it
    /// succeeded; on failure the file is as it was.
    bool writePrivateProfileString(std::string_view section, std::optional<std::string_view> key,
                                   std::optional<std::string_view> text, std::string_view file);

  private:
    ProfileReader& readerOf(std::string_view file);

    Files& files_;
    std::shared_ptr<const std::string> bytes_;  // of the file that was read last
    std::optional<ProfileReader> reader_;
};

}  // namespace tessaro
