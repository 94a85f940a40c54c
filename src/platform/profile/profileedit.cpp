#include "platform/profile/profileedit.h"

#include "platform/profile/profiletext.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

// Bytes of a text to be replaced, and UTF-8 to stand there.
struct Splice {
    std::size_t begin = 0;
    std::size_t size = 0;
    std::string insertion;
    bool operator==(const Splice&) const = default;
};

bool endsLine(std::string_view text) {
    return text.ends_with('\n') || text.ends_with('\r');
}

// New lines end as the file's first line does.
std::string_view lineEndOf(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\n') return "\n";
        if (text[i] == '\r') return text.substr(i).starts_with("\r\n") ? "\r\n" : "\r";
    }
    return "\r\n";
}

// A line before `position` that has no end yet gets one first.
Splice insertLines(std::string_view text, std::size_t position, std::string lines) {
    const std::string_view before = text.substr(0, position);
    if (!before.empty() && !endsLine(before)) lines.insert(0, lineEndOf(text));
    return {position, 0, std::move(lines)};
}

// Whether the line holds the text already. Blanks that the text brings are not told from those
// round the value, or each repeated write would add them again.
bool holds(const ProfileText& text, const ProfileKey& key, std::string_view wanted) {
    const std::string_view core = trimProfileBlanks(wanted);
    if (core.empty()) return key.value.empty() && key.spaced.find(wanted) != std::string_view::npos;
    const auto coreBegin = static_cast<std::size_t>(core.data() - wanted.data());
    const auto valueBegin = static_cast<std::size_t>(key.value.data() - key.spaced.data());
    const std::string_view before = key.spaced.substr(0, valueBegin);
    const std::string_view after = key.spaced.substr(valueBegin + key.value.size());
    return before.ends_with(wanted.substr(0, coreBegin)) &&
           after.starts_with(wanted.substr(coreBegin + core.size())) &&
           text.decoded(key.value) == core;
}

std::size_t endOfKeys(const ProfileText& text, const ProfileSection& section) {
    std::size_t end = section.body;
    ProfileLines lines = text.lines(section);
    while (const auto line = lines.next()) {
        if (keyOf(*line)) end = text.position(line->whole) + line->whole.size();
    }
    return end;
}

Splice planNewKey(const ProfileText& text, const std::optional<ProfileSection>& section,
                  const ProfileChange& change) {
    const std::string lineEnd(lineEndOf(text.text()));
    const std::string line = std::string(*change.key) + "=" + std::string(*change.text) + lineEnd;
    if (section) return insertLines(text.text(), endOfKeys(text, *section), line);
    const std::string header = "[" + std::string(change.section) + "]" + lineEnd;
    return insertLines(text.text(), text.text().size(), header + line);
}

std::optional<Splice> planKey(const ProfileText& text, const ProfileChange& change) {
    const auto section = text.findSection(change.section);
    const auto key = section ? text.findKey(*section, *change.key) : std::nullopt;
    if (!change.text)
        return key ? std::optional(Splice{text.position(key->line), key->line.size(), {}})
                   : std::nullopt;
    if (!key) return planNewKey(text, section, change);
    if (holds(text, *key, *change.text)) return std::nullopt;
    return Splice{text.position(key->value), key->value.size(), std::string(*change.text)};
}

std::optional<Splice> planSectionDeletion(const ProfileText& text, std::string_view name) {
    const auto section = text.findSection(name);
    if (!section) return std::nullopt;
    const auto next = text.sectionFrom(section->body);
    const std::size_t end = next ? next->begin : text.text().size();
    return Splice{section->begin, end - section->begin, {}};
}

std::optional<Splice> plan(const ProfileText& text, const ProfileChange& change) {
    return change.key ? planKey(text, change) : planSectionDeletion(text, change.section);
}

std::string spliced(std::string_view text, const Splice& splice, std::string_view insertion) {
    std::string result;
    result.reserve(text.size() + insertion.size());
    result += text.substr(0, splice.begin);
    result += insertion;
    result += text.substr(splice.begin + splice.size);
    return result;
}

// Whether changed bytes hold the change. Bytes that came or went may let the whole file look like
// another encoding; then the names in it may be others, and the change still to be made.
bool readsBack(std::string_view bytes, Encoding encoding, const ProfileChange& change) {
    const Encoding seen = detectEncoding(bytes);
    return seen == encoding || isAsciiText(bytes) ||
           plan(ProfileText(bytes, seen), change) == plan(ProfileText(bytes, encoding), change);
}

// Puts new text between the file's own bytes; nothing if the change would not read back. The other
// lines have no say, so that a file of mixed encodings can be written at all.
std::optional<std::string> splicedBytes(const ProfileText& file, const Splice& splice,
                                        const ProfileChange& change) {
    const auto insertion = encodePiece(splice.insertion, file.encoding());
    if (!insertion) return std::nullopt;
    std::string bytes = std::string(file.mark()) + spliced(file.text(), splice, *insertion);
    if (!readsBack(bytes, file.encoding(), change)) return std::nullopt;
    return bytes;
}

std::string splicedWide(const ProfileText& file, const Splice& splice) {
    const std::string text = spliced(file.text(), splice, splice.insertion);
    return *encodeText(text, file.encoding()) + std::string(file.oddByte());
}

// The same text in UTF-16LE, which holds everything.
std::string widened(std::string_view bytes, Encoding encoding) {
    return *encodeText(decodeText(bytes, encoding), Encoding::Utf16LittleEndian);
}

}  // namespace

std::optional<std::string> changedProfile(std::string_view bytes, const ProfileChange& change) {
    const ProfileText file(bytes);
    const auto splice = plan(file, change);
    if (!splice) return std::nullopt;
    if (file.wide()) return splicedWide(file, *splice);
    if (auto result = splicedBytes(file, *splice, change)) return result;
    return changedProfile(widened(bytes, file.encoding()), change);
}

}  // namespace tessaro
