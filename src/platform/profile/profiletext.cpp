#include "platform/profile/profiletext.h"

#include "platform/text/ascii.h"
#include "platform/text/lettercase.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

// Whether only blanks stand between `position` and the beginning of its line.
bool firstOnItsLine(std::string_view text, std::size_t position) {
    while (position > 0 && isProfileBlank(text[position - 1])) --position;
    return position == 0 || isLineEnd(text[position - 1]);
}

std::size_t lineBegin(std::string_view text, std::size_t position) {
    while (position > 0 && !isLineEnd(text[position - 1])) --position;
    return position;
}

ProfileSection sectionAt(std::string_view text, std::size_t bracket) {
    std::size_t end = bracket + 1;
    while (end < text.size() && text[end] != ']' && !isLineEnd(text[end])) ++end;
    ProfileSection section;
    section.name = trimProfileBlanks(text.substr(bracket + 1, end - bracket - 1));
    section.begin = lineBegin(text, bracket);
    while (end < text.size() && !isLineEnd(text[end])) ++end;
    section.body = afterLineEnd(text, end);
    return section;
}

// A cheap look at the first letters, which spares nearly all lines the full comparison.
bool mayBegin(std::string_view content, std::string_view name) {
    if (content.empty()) return false;
    if (name.empty()) return content.front() == '=';
    return !isAscii(content.front()) || !isAscii(name.front()) ||
           lowerAscii(content.front()) == lowerAscii(name.front());
}

}  // namespace

ProfileText::ProfileText(std::string_view bytes, Encoding encoding)
    : encoding_(encoding), text_(bytes.substr(markOf(encoding).size())) {
    if (!wide()) return;
    oddByte_ = text_.substr(text_.size() - text_.size() % 2);
    decoded_ = decodeText(bytes.substr(0, bytes.size() - oddByte_.size()), encoding);
    text_ = decoded_;
}

bool ProfileText::wide() const {
    return encoding_ == Encoding::Utf16LittleEndian || encoding_ == Encoding::Utf16BigEndian;
}

std::string ProfileText::decoded(std::string_view part) const {
    if (isAsciiText(part)) return std::string(part);
    return encoding_ == Encoding::CodePage ? decodeText(part, encoding_) : wholeCharacters(part);
}

std::optional<ProfileSection> ProfileText::sectionFrom(std::size_t position) const {
    for (std::size_t bracket = text_.find('[', position); bracket != std::string_view::npos;
         bracket = text_.find('[', bracket + 1))
        if (firstOnItsLine(text_, bracket)) return sectionAt(text_, bracket);
    return std::nullopt;
}

std::optional<ProfileSection> ProfileText::findSection(std::string_view name) const {
    auto section = sectionFrom(0);
    while (section && !matches(section->name, name)) section = sectionFrom(section->body);
    return section;
}

std::optional<ProfileKey> ProfileText::findKey(const ProfileSection& section,
                                               std::string_view name) const {
    ProfileLines lines = this->lines(section);
    while (const auto line = lines.next()) {
        if (!mayBegin(line->content, name)) continue;
        const auto key = keyOf(*line);
        if (key && matches(key->name, name)) return key;
    }
    return std::nullopt;
}

bool ProfileText::matches(std::string_view part, std::string_view name) const {
    return isAsciiText(part) ? sameName(part, name) : sameName(decoded(part), name);
}

}  // namespace tessaro
