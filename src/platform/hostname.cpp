#include "platform/hostname.h"

namespace tessaro {

namespace {

constexpr std::string_view backslash = "\\";
constexpr std::string_view standIn = "\xEF\x81\x9C";

std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
    std::string result(text);
    for (auto at = result.find(what); at != std::string::npos; at = result.find(what, at)) {
        result.replace(at, what.size(), with);
        at += with.size();
    }
    return result;
}

}  // namespace

std::string gameName(std::string_view hostName) {
    return replaced(hostName, backslash, standIn);
}

std::string hostName(std::string_view gameName) {
    return replaced(gameName, standIn, backslash);
}

}  // namespace tessaro
