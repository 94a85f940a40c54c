#include "cache/cacheindex.h"

#include "platform/runtime/runtimeerror.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

constexpr std::size_t cachedNameLength = 32;
constexpr std::size_t separatorEnd = 33;
constexpr std::size_t longestExtension = 4;
constexpr std::size_t droppedDigits = 3;

}  // namespace

bool isSkippedLine(std::string_view line) {
    return line.empty() || line == "[Cache]";
}

std::string cachedFileOf(std::string_view cacheFolder, std::string_view line) {
    std::string path(cacheFolder);
    path += '\\';
    path += left(line, cachedNameLength);
    path += ".uxx";
    return path;
}

std::string trueNameOf(std::string_view line) {
    const std::size_t characters = length(line);
    if (characters < separatorEnd) throw RunTimeError(errors::InvalidProcedureCall);
    return std::string(right(line, characters - separatorEnd));
}

void getext(std::string_view name, std::size_t& ExtLen) {
    const std::string_view tail = right(name, longestExtension);
    const std::size_t dot = tail.rfind('.');
    if (dot != std::string_view::npos) ExtLen = length(tail.substr(dot));
}

bool isOfType(std::string_view name, std::size_t ExtLen, const FileType& type) {
    return right(name, ExtLen) == type.extension;
}

std::string kilobytesOf(std::string_view size) {
    if (size.size() < droppedDigits) throw RunTimeError(errors::InvalidProcedureCall);
    return std::string(size.substr(0, size.size() - droppedDigits));
}

}  // namespace tessaro
