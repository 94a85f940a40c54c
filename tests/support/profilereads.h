#pragma once

#include "platform/profile/profilereader.h"

namespace tessaro::test {

// One read each, of bytes that are looked at for the first time.

inline std::optional<std::string> profileValue(std::string_view bytes, std::string_view section,
                                               std::string_view key) {
    return ProfileReader(bytes).value(section, key);
}

inline std::string profileSections(std::string_view bytes) {
    return ProfileReader(bytes).sections();
}

inline std::optional<std::string> profileKeys(std::string_view bytes, std::string_view section) {
    return ProfileReader(bytes).keys(section);
}

}  // namespace tessaro::test
