#include "platform/profile/profilecalls.h"

#include "platform/profile/profileedit.h"
#include "platform/profile/profilelines.h"
#include "platform/profile/profilereader.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/encoding.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

std::string_view withoutTrailingSpaces(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

// The names of arguments lose their outer spaces, not their tabs, which are kept and match nothing.
std::string nameFrom(std::string_view argument) {
    return wholeCharacters(trimSpaces(argument));
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

// Whether what is written with this name is found by this name again. If not, each write would add
// a line, which may even begin a section that nobody asked for.
bool readsBack(std::string_view name) {
    return !breaksLine(name) && trimProfileBlanks(name) == name;
}

bool namesSection(std::string_view name) {
    return readsBack(name) && name.find(']') == std::string_view::npos;
}

bool namesKey(std::string_view name) {
    return readsBack(name) && name.find('=') == std::string_view::npos && !name.starts_with(';') &&
           !name.starts_with('[');
}

bool canBeMade(const ProfileChange& change) {
    return namesSection(change.section) && namesKey(change.key.value_or("")) &&
           !breaksLine(change.text.value_or(""));
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
    ProfileReader* reader = nullptr;
    if (!attempt([&] { reader = &readerOf(file); })) return defaultResult();
    if (!section) return cutListing(reader->sections(), size);
    if (!key) {
        auto keys = reader->keys(nameFrom(*section));
        return keys ? cutListing(*std::move(keys), size) : defaultResult();
    }
    auto value = reader->value(nameFrom(*section), nameFrom(*key));
    if (!value) return defaultResult();
    value->resize(left(*value, size - 1).size());
    return *std::move(value);
}

ProfileReader& ProfileCalls::readerOf(std::string_view file) {
    auto bytes = files_.content(file);
    if (bytes != bytes_) {
        reader_.reset();
        bytes_ = std::move(bytes);
        reader_.emplace(*bytes_);
    }
    return *reader_;
}

bool ProfileCalls::writePrivateProfileString(std::string_view section,
                                             std::optional<std::string_view> key,
                                             std::optional<std::string_view> text,
                                             std::string_view file) {
    const std::string place = nameFrom(section);
    const auto name = key ? std::optional(nameFrom(*key)) : std::nullopt;
    const auto value = text ? std::optional(wholeCharacters(*text)) : std::nullopt;
    const ProfileChange change{place, name, value};
    if (!canBeMade(change)) return false;
    return attempt([&] {
        files_.change(file, [&](std::string_view bytes) { return changedProfile(bytes, change); });
    });
}

}  // namespace tessaro
