#include "support/plainprofile.h"

#include <algorithm>
#include <utility>

namespace tessaro::test {

namespace {

std::string stripped(const std::string& text, const char* what = " \t\v\r\n") {
    const auto first = text.find_first_not_of(what);
    return first == std::string::npos ? std::string()
                                      : text.substr(first, text.find_last_not_of(what) - first + 1);
}

// The letters that random names are made of.
std::string lower(std::string text) {
    for (const auto& [upper, small] :
         {std::pair{"A", "a"}, {"B", "b"}, {"É", "é"}, {"Ã", "ã"}, {"Ł", "ł"}, {"Ж", "ж"}}) {
        for (auto at = text.find(upper); at != std::string::npos; at = text.find(upper))
            text.replace(at, std::string(upper).size(), small);
    }
    return text;
}

bool isHeader(const std::string& line) {
    return stripped(line).substr(0, 1) == "[";
}

bool isKey(const std::string& line) {
    return !isHeader(line) && stripped(line).substr(0, 1) != ";" &&
           line.find('=') != std::string::npos;
}

std::string withValue(const std::string& line, const std::string& value) {
    const auto after = line.find('=') + 1;
    const auto first = std::min(line.find_first_not_of(" \t\v", after), line.size());
    const std::string old = stripped(line.substr(after));
    const auto begin = old.empty() ? line.find_last_not_of("\r\n") + 1 : first;
    return line.substr(0, begin) + value + line.substr(begin + old.size());
}

bool isWide(Encoding encoding) {
    return encoding == Encoding::Utf16LittleEndian || encoding == Encoding::Utf16BigEndian;
}

PlainProfile plainText(const std::string& bytes, Encoding encoding) {
    if (isWide(encoding)) return {decodeText(bytes, encoding), Encoding::Utf8};
    return {bytes.substr(markOf(encoding).size()), encoding};
}

void apply(PlainProfile& profile, const std::string& section, const std::optional<std::string>& key,
           const std::optional<std::string>& value) {
    if (key && value) {
        profile.write(section, *key, *value);
    } else {
        profile.erase(section, key);
    }
}

std::string widelyChanged(const std::string& text, Encoding encoding, const std::string& section,
                          const std::optional<std::string>& key,
                          const std::optional<std::string>& value) {
    PlainProfile profile(text, Encoding::Utf8);
    apply(profile, section, key, value);
    return encodeText(profile.text(), encoding).value();
}

}  // namespace

PlainProfile::PlainProfile(const std::string& text, Encoding encoding) : encoding_(encoding) {
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        line += text[i];
        const bool inside = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (!inside && (text[i] == '\r' || text[i] == '\n'))
            lines_.push_back(std::exchange(line, {}));
    }
    if (!line.empty()) lines_.push_back(line);
    const auto end = lines_.empty() ? std::string::npos : lines_.front().find_first_of("\r\n");
    if (end != std::string::npos) lineEnd_ = lines_.front().substr(end);
}

std::string PlainProfile::text() const {
    std::string text;
    for (const std::string& line : lines_) text += line;
    return text;
}

std::string PlainProfile::decoded(const std::string& part) const {
    return encoding_ == Encoding::CodePage ? decodeText(part, encoding_) : wholeCharacters(part);
}

std::string PlainProfile::encoded(const std::string& part) const {
    return encodePiece(part, encoding_).value();
}

std::string PlainProfile::headerName(const std::string& line) const {
    const std::string text = stripped(line).substr(1);
    return lower(decoded(stripped(text.substr(0, text.find(']')))));
}

std::string PlainProfile::keyName(const std::string& line) const {
    return lower(decoded(stripped(line.substr(0, line.find('=')))));
}

std::optional<std::size_t> PlainProfile::find(const std::string& section,
                                              const std::optional<std::string>& key) const {
    std::size_t at = 0;
    while (at < lines_.size() &&
           !(isHeader(lines_[at]) && headerName(lines_[at]) == lower(section)))
        ++at;
    if (at == lines_.size()) return std::nullopt;
    if (!key) return at;
    const std::size_t end = sectionEnd(at);
    for (++at; at < end; ++at) {
        if (isKey(lines_[at]) && keyName(lines_[at]) == lower(*key)) return at;
    }
    return std::nullopt;
}

std::size_t PlainProfile::sectionEnd(std::size_t header) const {
    std::size_t at = header + 1;
    while (at < lines_.size() && !isHeader(lines_[at])) ++at;
    return std::min(at, lines_.size());
}

std::optional<std::string> PlainProfile::value(const std::string& section,
                                               const std::string& key) const {
    const auto line = find(section, key);
    if (!line) return std::nullopt;
    return decoded(stripped(lines_[*line].substr(lines_[*line].find('=') + 1)));
}

bool PlainProfile::holds(const std::string& section, const std::string& key,
                         const std::string& value) const {
    return encodePiece(section + key + value, encoding_).has_value();
}

void PlainProfile::addLine(std::size_t at, const std::string& line) {
    if (at > 0 && lines_[at - 1].find_last_of("\r\n") == std::string::npos)
        lines_[at - 1] += lineEnd_;
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), encoded(line) + lineEnd_);
}

void PlainProfile::write(const std::string& section, const std::string& key,
                         const std::string& value) {
    if (const auto line = find(section, key)) {
        lines_[*line] = withValue(lines_[*line], encoded(value));
        return;
    }
    const auto header = find(section, std::nullopt);
    if (!header) {
        addLine(lines_.size(), "[" + section + "]");
        addLine(lines_.size(), key + "=" + value);
        return;
    }
    std::size_t last = *header;
    for (std::size_t at = *header + 1; at < sectionEnd(*header); ++at)
        last = isKey(lines_[at]) ? at : last;
    addLine(last + 1, key + "=" + value);
}

void PlainProfile::erase(const std::string& section, const std::optional<std::string>& key) {
    const auto begin = find(section, key);
    if (!begin) return;
    const std::size_t end = key ? *begin + 1 : sectionEnd(*begin);
    lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*begin),
                 lines_.begin() + static_cast<std::ptrdiff_t>(end));
}

std::string plainlyChanged(const std::string& bytes, const std::string& section,
                           const std::optional<std::string>& key,
                           const std::optional<std::string>& value) {
    const Encoding encoding = detectEncoding(bytes);
    if (isWide(encoding)) {
        const std::size_t odd = bytes.size() % 2;  // a byte at the end that is no text
        const std::string text = decodeText(bytes.substr(0, bytes.size() - odd), encoding);
        return widelyChanged(text, encoding, section, key, value) +
               bytes.substr(bytes.size() - odd);
    }
    PlainProfile profile = plainText(bytes, encoding);
    if (!value || profile.holds(section, *key, *value)) {
        apply(profile, section, key, value);
        const std::string changed = std::string(markOf(encoding)) + profile.text();
        // As it will be read from now on: the place must be the same, and so must the value.
        const PlainProfile seen = plainText(changed, detectEncoding(changed));
        const bool same = seen.find(section, key) == profile.find(section, key) &&
                          (!value || seen.value(section, *key) == profile.value(section, *key));
        if (same) return changed;
    }
    return widelyChanged(decodeText(bytes, encoding), Encoding::Utf16LittleEndian, section, key,
                         value);
}

std::optional<std::string> plainValue(const std::string& bytes, const std::string& section,
                                      const std::string& key) {
    return plainText(bytes, detectEncoding(bytes)).value(section, key);
}

}  // namespace tessaro::test
