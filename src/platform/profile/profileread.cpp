#include "platform/profile/profileread.h"

#include "platform/profile/profiletext.h"

namespace tessaro {

namespace {

std::string_view withoutQuotes(std::string_view value) {
    const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                        (value.front() == '"' || value.front() == '\'');
    return quoted ? value.substr(1, value.size() - 2) : value;
}

void addName(std::string& listing, const ProfileText& text, std::string_view name) {
    listing += text.decoded(name);
    listing += '\0';
}

}  // namespace

std::optional<std::string> profileValue(std::string_view bytes, std::string_view section,
                                        std::string_view key) {
    const ProfileText text(bytes);
    const auto place = text.findSection(section);
    if (!place) return std::nullopt;
    const auto found = text.findKey(*place, key);
    return found ? std::optional(text.decoded(withoutQuotes(found->value))) : std::nullopt;
}

std::string profileSections(std::string_view bytes) {
    const ProfileText text(bytes);
    std::string listing;
    for (auto section = text.sectionFrom(0); section; section = text.sectionFrom(section->body)) {
        addName(listing, text, section->name);
    }
    return listing;
}

std::optional<std::string> profileKeys(std::string_view bytes, std::string_view section) {
    const ProfileText text(bytes);
    const auto place = text.findSection(section);
    if (!place) return std::nullopt;
    std::string listing;
    ProfileLines lines = text.lines(*place);
    while (const auto line = lines.next()) {
        if (const auto key = keyOf(*line)) addName(listing, text, key->name);
    }
    return listing;
}

}  // namespace tessaro
