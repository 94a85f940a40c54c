#include "core/modWinVersion.h"

#include "platform/text/lettercase.h"

namespace tessaro {
namespace {

constexpr std::int32_t windows32s = 0;
constexpr std::int32_t windows9x = 1;
constexpr std::int32_t windowsNT = 2;
constexpr std::int32_t any = -1;

struct KnownSystem {
    std::int32_t platform;
    std::int32_t major;
    std::int32_t minor;
    std::int32_t code;
    const char* name;
};

// The first row that fits counts.
constexpr KnownSystem knownSystems[] = {
    {windows32s, any, any, 2, "Windows 32s"}, {windows9x, any, 0, 3, "Windows 95"},
    {windows9x, any, 10, 4, "Windows 98"},    {windows9x, any, 90, 5, "Windows ME"},
    {windowsNT, 3, any, 32, "Windows NT3"},   {windowsNT, 4, any, 33, "Windows NT4"},
    {windowsNT, 5, 0, 34, "Windows 2000"},    {windowsNT, 5, 1, 35, "Whistler"},
    {windows9x, any, any, 0, "Unknown"},      {windowsNT, any, any, 0, "Unknown"},
};

bool fits(std::int32_t wanted, std::int32_t value) {
    return wanted == any || wanted == value;
}

void setCodeAndName(OSVersionInfo& info, const SystemVersion& version) {
    for (const KnownSystem& known : knownSystems) {
        if (known.platform == version.platform && fits(known.major, version.major) &&
            fits(known.minor, version.minor)) {
            info.code = known.code;
            info.name = known.name;
            return;
        }
    }
    info.code = 0;
    info.name = version.name.empty() ? "0" : version.name;
}

}  // namespace

std::int32_t GetOSVersion(OSVersionInfo& info, const std::optional<SystemVersion>& version) {
    if (!version) return 0;
    info.major = version->major;
    info.minor = version->minor;
    info.platform = version->platform;
    // On the older line the upper half of the build repeats the version.
    info.build = version->platform == windows9x ? version->build & 0xFFFF : version->build;
    // The field ends at its NUL; without one it counts as empty.
    const std::size_t end = version->servicePack.find('\0');
    info.servicePack = end == std::string::npos ? "" : version->servicePack.substr(0, end);
    setCodeAndName(info, *version);
    return 1;
}

bool isWindows98(const OSVersionInfo& info) {
    return lowerCase(info.name) == "windows 98";
}

}  // namespace tessaro
