#include "platform/profile/profilecalls.h"

#include "platform/profile/profileedit.h"
#include "platform/profile/profileread.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

std::string_view withoutTrailingSpaces(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The names of arguments lose their outer spaces, not their tabs, which are kept and match nothing.
std::optional<std::string_view> trimmed(std::optional<std::string_view> name) {
    return name ? std::optional(trimSpaces(*name)) : std::nullopt;
}

// Room for a closing NUL, and for a listing a second one. A listing that would fill the buffer to
// its last character already counts as cut.
std::string cutListing(std::string listing, std::size_t size) {
    if (length(listing) + 1 < size) return listing;
    return std::string(left(listing, size < 2 ? 0 : size - 2));
}

bool breaksLine(std::string_view text) {
    return text.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos;
}

// Such a text would forge lines in the game's files, or end early where the game reads it.
bool isForged(std::string_view section, std::optional<std::string_view> key,
              std::optional<std::string_view> text) {
    return breaksLine(section) || breaksLine(key.value_or("")) || breaksLine(text.value_or(""));
}

}  // namespace

std::string ProfileCalls::getPrivateProfileString(std::optional<std::string_view> section,
                                                  std::optional<std::string_view> key,
                                                  std::string_view defaultText, std::size_t size,
                                                  std::string_view file) {
    if (size == 0) return {};
    const auto defaultResult = [&] {
        return std::string(left(withoutTrailingSpaces(defaultText), size - 1));
    };
    std::string bytes;
    if (!attempt([&] { bytes = files_.read(file); })) return defaultResult();
    if (!section) return cutListing(profileSections(bytes), size);
    if (!key) {
        auto keys = profileKeys(bytes, trimSpaces(*section));
        return keys ? cutListing(*std::move(keys), size) : defaultResult();
    }
    const auto value = profileValue(bytes, trimSpaces(*section), trimSpaces(*key));
    return value ? std::string(left(*value, size - 1)) : defaultResult();
}

bool ProfileCalls::writePrivateProfileString(std::string_view section,
                                             std::optional<std::string_view> key,
                                             std::optional<std::string_view> text,
                                             std::string_view file) {
    if (isForged(section, key, text)) return false;
    return attempt([&] {
        files_.change(file, [&](std::string_view bytes) {
            return changedProfile(bytes, {trimSpaces(section), trimmed(key), text});
        });
    });
}

}  // namespace tessaro
