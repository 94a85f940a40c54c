#include "platform/files/filetable.h"

#include <algorithm>
#include <utility>

#include "platform/files/wholefile.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/utf8.h"

namespace tessaro {

namespace {

constexpr int firstNumber = 1;
constexpr int lastNumber = 511;
constexpr std::string_view lineEnd = "\r\n";

// The library's search for one of two characters is slow. Piece by piece, so that a search for one
// of them does not run through a whole file that has only the other.
std::size_t findLineEnd(std::string_view text, std::size_t start) {
    constexpr std::size_t pieceSize = 128;
    for (; start < text.size(); start += pieceSize) {
        std::string_view piece = text.substr(start, pieceSize);
        piece = piece.substr(0, piece.find('\r'));
        const std::size_t end = std::min(piece.find('\n'), piece.size());
        if (end < pieceSize) return start + end;
    }
    return text.size();
}

}  // namespace

void FileTable::openInput(int number, std::string_view file) {
    requireFree(number);
    OpenFile opening{Mode::Input, files_.paths().absolute(file), {}, 0, {}};
    std::string bytes = files_.read(opening.path);
    opening.text = isAsciiText(bytes) ? std::move(bytes) : decodeText(bytes, detectEncoding(bytes));
    open_.emplace(number, std::move(opening));
}

void FileTable::openOutput(int number, std::string_view file) {
    requireFree(number);
    OpenFile opening{Mode::Output, files_.paths().absolute(file), {}, 0, {}};
    const HostPath path = files_.paths().toWrite(opening.path);
    requireReplaceable(files_.host(), path);
    if (files_.host().status(path)) {
        const std::string bytes = files_.read(opening.path);
        opening.encoding = detectEncoding(bytes);
        opening.text.reserve(bytes.size());  // as a rule there will be about as much
    }
    open_.emplace(number, std::move(opening));
}

void FileTable::openAppend(int number, std::string_view file) {
    requireFree(number);
    OpenFile opening{Mode::Append, files_.paths().absolute(file), {}, 0, {}};
    files_.touch(opening.path);
    open_.emplace(number, std::move(opening));
}

void FileTable::touch(int number, std::string_view file) {
    requireFree(number);
    files_.touch(file);
}

std::string_view FileTable::lineInput(int number) {
    OpenFile& file = opened(number, true);
    if (file.position == file.text.size()) throw RunTimeError(errors::InputPastEnd, file.path);
    const std::size_t start = file.position;
    const std::size_t end = findLineEnd(file.text, start);
    const bool pair = file.text.compare(end, lineEnd.size(), lineEnd) == 0;
    file.position = std::min(end + (pair ? 2 : 1), file.text.size());
    return std::string_view(file.text).substr(start, end - start);
}

bool FileTable::endOfFile(int number) {
    const OpenFile& file = opened(number, true);
    return file.position == file.text.size();
}

void FileTable::printLine(int number, std::string_view text) {
    opened(number, false).text.append(text).append(lineEnd);
}

void FileTable::close(int number) {
    // The number is free again even if saving fails.
    if (const auto closing = open_.extract(number)) save(closing.mapped());
}

void FileTable::save(const OpenFile& file) {
    if (file.mode == Mode::Output) {
        files_.replace(file.path, encodeOrWiden(file.text, file.encoding));
    } else if (file.mode == Mode::Append && !file.text.empty()) {
        files_.change(file.path, [&](std::string_view bytes) {
            const Encoding encoding = detectEncoding(bytes);
            return std::optional(encodeOrWiden(decodeText(bytes, encoding) + file.text, encoding));
        });
    }
}

int FileTable::freeNumber() const {
    int number = firstNumber;
    while (open_.contains(number)) ++number;
    if (number > lastNumber) throw RunTimeError(errors::TooManyFiles);
    return number;
}

FileTable::OpenFile& FileTable::opened(int number, bool forInput) {
    const auto found = open_.find(number);
    if (found == open_.end()) throw RunTimeError(errors::BadFileNumber);
    if ((found->second.mode == Mode::Input) != forInput) throw RunTimeError(errors::BadFileMode);
    return found->second;
}

void FileTable::requireFree(int number) const {
    if (number < firstNumber || number > lastNumber) throw RunTimeError(errors::BadFileNumber);
    if (open_.contains(number)) throw RunTimeError(errors::FileAlreadyOpen);
}

}  // namespace tessaro
