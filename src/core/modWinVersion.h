#pragma once
// modWinVersion: the operating system's version and name.

#include <cstdint>
#include <optional>
#include <string>

#include "platform/outside/systemversion.h"

namespace tessaro {

/// What the program knows of the system. `success` is for the caller to set, from what
/// `GetOSVersion` gave.
struct OSVersionInfo {
    std::int32_t code = 0;
    std::string name;
    std::int32_t major = 0;
    std::int32_t minor = 0;
    std::int32_t build = 0;
    std::int32_t platform = 0;
    std::string servicePack;
    std::int32_t success = 0;
};

/// Fills the record from what the system says; gives 1, or 0 without touching the record.
std::int32_t GetOSVersion(OSVersionInfo& info,
                          const std::optional<SystemVersion>& version = systemVersion());
/// Whether the name says Windows 98, on which command lines go through its shell.
bool isWindows98(const OSVersionInfo& info);

}  // namespace tessaro
