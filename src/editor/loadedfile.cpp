#include "editor/loadedfile.h"

#include <utility>

#include "editor/boxtext.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

constexpr std::size_t bytesInAUnit = 2;

std::size_t oddBytes(std::string_view bytes, Encoding encoding) {
    return holdsPairs(encoding) ? bytes.size() % bytesInAUnit : 0;
}

}  // namespace

LoadedFile::LoadedFile(std::string bytes)
    : bytes_(std::move(bytes)), encoding_(detectEncoding(bytes_)) {
    std::string_view whole = bytes_;
    whole.remove_suffix(oddBytes(whole, encoding_));
    // Most files of the game are plain ASCII, which reads the same in all 8-bit encodings.
    text_ = isAsciiText(whole) ? toBox(whole, encoding_)
                               : toBox(decodeText(whole, encoding_), encoding_);
    findLines();
}

void LoadedFile::findLines() {
    Start start{markOf(encoding_).size(), 0};
    std::size_t end = 0;
    do {
        starts_.push_back(start);
        end = nextLineEnd(text_, start.unit);
        const std::size_t next = end + lineEndAt(text_, end);
        start = {start.byte + bytesOf(start.unit, next - start.unit), next};
    } while (end < text_.size());
    starts_.push_back(start);
}

std::size_t LoadedFile::bytesOf(std::size_t unit, std::size_t count) const {
    if (encoding_ == Encoding::CodePage) return count;
    if (holdsPairs(encoding_)) return count * bytesInAUnit;
    return fromBox(std::u16string_view(text_).substr(unit, count), encoding_).size();
}

// Where a line's end begins.
std::size_t LoadedFile::endOf(std::size_t line) const {
    const std::size_t next = starts_[line + 1].unit;
    if (isLast(line)) return next;
    const bool pair = next >= starts_[line].unit + 2 && lineEndAt(text_, next - 2) == 2;
    return next - (pair ? 2 : 1);
}

std::u16string_view LoadedFile::line(std::size_t line) const {
    const std::size_t start = starts_[line].unit;
    return std::u16string_view(text_).substr(start, endOf(line) - start);
}

std::u16string_view LoadedFile::lineEnd(std::size_t line) const {
    const std::size_t end = endOf(line);
    return std::u16string_view(text_).substr(end, starts_[line + 1].unit - end);
}

std::string_view LoadedFile::bytes(std::size_t from, std::size_t to) const {
    const std::size_t start = starts_[from].byte;
    return std::string_view(bytes_).substr(start, starts_[to].byte - start);
}

std::u16string_view LoadedFile::text(std::size_t from, std::size_t to) const {
    const std::size_t start = starts_[from].unit;
    return std::u16string_view(text_).substr(start, starts_[to].unit - start);
}

std::string_view LoadedFile::odd() const {
    return std::string_view(bytes_).substr(starts_.back().byte);
}

}  // namespace tessaro
