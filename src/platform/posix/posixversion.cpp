#include <sys/utsname.h>

#include <cstdio>

#include "platform/outside/systemversion.h"

namespace tessaro {

namespace {
// Beyond the codes of the Windows lines, 0 to 2, and of its pocket edition, 3.
constexpr std::int32_t posixPlatform = 4;
}  // namespace

std::optional<SystemVersion> systemVersion() {
    utsname system = {};
    if (::uname(&system) == -1) return std::nullopt;
    SystemVersion version;
    // A release reads as "6.1.0-18-amd64"; fields that are not there stay 0.
    std::sscanf(system.release, "%d.%d.%d", &version.major, &version.minor, &version.build);
    version.platform = posixPlatform;
    version.name = system.sysname;
    return version;
}

}  // namespace tessaro
