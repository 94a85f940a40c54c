#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessaro {

/// What the operating system says of itself. Platform 1 and 2 are the two lines of Windows.
struct SystemVersion {
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t build = 0;
    std::int32_t platform = 0;
    std::string servicePack;
    /// A system other than Windows gives its own name here.
    std::string name;
};

/// Nothing if the system does not say.
std::optional<SystemVersion> systemVersion();

}  // namespace tessaro
