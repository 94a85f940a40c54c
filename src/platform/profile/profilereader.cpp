#include "platform/profile/profilereader.h"

#include "platform/text/utf8.h"

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

ProfileReader::ProfileReader(std::string_view bytes) : text_(bytes) {
    for (auto each = text_.sectionFrom(0); each; each = text_.sectionFrom(each->body))
        sections_.try_emplace(readable(each->name), Section{*each, {}});
}

std::optional<std::string> ProfileReader::value(std::string_view section, std::string_view key) {
    const auto place = sections_.find(section);
    if (place == sections_.end()) return std::nullopt;
    if (!place->second.values) takeValues(place->second);
    const auto found = place->second.values->find(key);
    if (found == place->second.values->end()) return std::nullopt;
    return text_.decoded(withoutQuotes(found->second));
}

void ProfileReader::takeValues(Section& section) {
    section.values.emplace();
    ProfileLines lines = text_.lines(section.place);
    while (const auto line = lines.next()) {
        if (const auto key = keyOf(*line))
            section.values->try_emplace(readable(key->name), key->value);
    }
}

// A name as it is asked for.
std::string_view ProfileReader::readable(std::string_view name) {
    return isAsciiText(name) ? name : decodedNames_.emplace_back(text_.decoded(name));
}

std::string ProfileReader::sections() const {
    std::string listing;
    for (auto each = text_.sectionFrom(0); each; each = text_.sectionFrom(each->body))
        addName(listing, text_, each->name);
    return listing;
}

std::optional<std::string> ProfileReader::keys(std::string_view section) {
    const auto place = sections_.find(section);
    if (place == sections_.end()) return std::nullopt;
    std::string listing;
    ProfileLines lines = text_.lines(place->second.place);
    while (const auto line = lines.next()) {
        if (const auto key = keyOf(*line)) addName(listing, text_, key->name);
    }
    return listing;
}

}  // namespace tessaro
