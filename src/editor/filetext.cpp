#include "editor/filetext.h"

#include <algorithm>
#include <utility>

#include "editor/boxtext.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

constexpr std::string_view lineBreak = "\r\n";
constexpr std::u16string_view usualEnd = u"\r\n";
constexpr std::size_t roomForTyped = 4096;

}  // namespace

FileText::FileText(std::string bytes) : loaded_(std::move(bytes)), origins_(loaded_.lineCount()) {}

void FileText::replaced(std::size_t first, std::size_t removed, std::size_t added) {
    origins_.replaced(first, removed, added);
}

std::string FileText::saved(const BoxLine& box) const {
    const auto parts = pieces(box);
    if (auto bytes = spliced(parts)) return *std::move(bytes);
    std::string text = fromBox(joined(parts), loaded_.encoding());
    return encodeOrWiden(text.append(lineBreak), Encoding::Utf16LittleEndian);
}

std::string FileText::text(const BoxLine& box) const {
    return readable(joined(pieces(box)));
}

std::vector<FileText::Piece> FileText::pieces(const BoxLine& box) const {
    const auto lines = origins_.recognised(loaded_, box);
    LineOrigin above = firstWithEnd(lines);
    std::vector<Piece> parts(1);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const LineOrigin& origin = lines[i];
        const bool last = i + 1 == lines.size();
        if (hasEnd(origin)) above = origin;
        if (!origin.untouched() || hasEnd(origin) == last) {
            parts.back().typed.append(box(i)).append(last ? std::u16string_view() : endOf(above));
        } else if (parts.back().typed.empty() && parts.back().to == origin.line) {
            ++parts.back().to;
        } else {
            parts.push_back({origin.line, origin.line + 1U, {}});
        }
    }
    return parts;
}

bool FileText::hasEnd(const LineOrigin& origin) const {
    return origin.known() && !loaded_.isLast(origin.line);
}

// By it end new lines at the top, which have no line above.
LineOrigin FileText::firstWithEnd(const std::vector<LineOrigin>& lines) const {
    const auto first =
        std::ranges::find_if(lines, [this](const LineOrigin& line) { return hasEnd(line); });
    return first == lines.end() ? LineOrigin() : *first;
}

std::u16string_view FileText::endOf(const LineOrigin& origin) const {
    return origin.known() ? loaded_.lineEnd(origin.line) : usualEnd;
}

std::u16string FileText::joined(const std::vector<Piece>& pieces) const {
    std::u16string text;
    for (const Piece& piece : pieces)
        text.append(loaded_.text(piece.from, piece.to)).append(piece.typed);
    return text;
}

// Nothing if the encoding cannot hold the text, or if the bytes would be taken for another one.
std::optional<std::string> FileText::spliced(const std::vector<Piece>& pieces) const {
    const Encoding encoding = loaded_.encoding();
    std::string bytes(markOf(encoding));
    bytes.reserve(loaded_.size() + roomForTyped);
    for (const Piece& piece : pieces) {
        const auto typed = encodePiece(fromBox(piece.typed, encoding), encoding);
        if (!typed) return std::nullopt;
        bytes.append(loaded_.bytes(piece.from, piece.to)).append(*typed);
    }
    bytes.append(*encodePiece(lineBreak, encoding)).append(loaded_.odd());
    const bool readsBack = isAsciiText(bytes) || detectEncoding(bytes) == encoding;
    return readsBack ? std::optional(std::move(bytes)) : std::nullopt;
}

}  // namespace tessaro
