#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessaro {

/// UTF-8 as the system takes text, in UTF-16. What is no proper UTF-8 becomes U+FFFD.
std::wstring toWide(std::string_view text);

/// The way back. Nothing for what is no proper UTF-16, as a name on a disk need not be.
std::optional<std::string> fromWide(std::wstring_view text);

}  // namespace tessaro
