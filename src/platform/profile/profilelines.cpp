#include "platform/profile/profilelines.h"

#include <algorithm>

namespace tessaro {

namespace {

std::size_t findOrEnd(std::string_view text, char byte, std::size_t from) {
    return std::min(text.find(byte, from), text.size());
}

}  // namespace

bool isProfileBlank(char byte) {
    return byte == ' ' || byte == '\t' || byte == '\v';
}

bool isLineEnd(char byte) {
    return byte == '\r' || byte == '\n';
}

std::size_t afterLineEnd(std::string_view text, std::size_t end) {
    if (text.substr(end).starts_with("\r\n")) return end + 2;
    return std::min(end + 1, text.size());
}

std::string_view trimProfileBlanks(std::string_view text) {
    while (!text.empty() && isProfileBlank(text.front())) text.remove_prefix(1);
    while (!text.empty() && isProfileBlank(text.back())) text.remove_suffix(1);
    return text;
}

ProfileLines::ProfileLines(std::string_view text, std::size_t begin)
    : text_(text),
      position_(begin),
      lineFeed_(findOrEnd(text, '\n', begin)),
      carriageReturn_(findOrEnd(text, '\r', begin)) {}

std::size_t ProfileLines::lineEnd() {
    if (lineFeed_ < position_) lineFeed_ = findOrEnd(text_, '\n', position_);
    if (carriageReturn_ < position_) carriageReturn_ = findOrEnd(text_, '\r', position_);
    return std::min(lineFeed_, carriageReturn_);
}

std::optional<ProfileLine> ProfileLines::next() {
    if (position_ >= text_.size()) return std::nullopt;
    const std::size_t begin = position_;
    const std::size_t end = lineEnd();
    const std::string_view content = trimProfileBlanks(text_.substr(begin, end - begin));
    if (content.starts_with('[')) return std::nullopt;
    position_ = afterLineEnd(text_, end);
    return ProfileLine{text_.substr(begin, position_ - begin), content};
}

std::optional<ProfileKey> keyOf(const ProfileLine& line) {
    const std::size_t divider = line.content.find('=');
    if (divider == std::string_view::npos || line.content.starts_with(';')) return std::nullopt;
    ProfileKey key;
    key.line = line.whole;
    key.name = trimProfileBlanks(line.content.substr(0, divider));
    key.spaced = line.whole.substr(line.whole.find('=') + 1);
    while (!key.spaced.empty() && isLineEnd(key.spaced.back())) key.spaced.remove_suffix(1);
    key.value = trimProfileBlanks(key.spaced);
    return key;
}

}  // namespace tessaro
