#include "tools/ucc/console.h"

#include <algorithm>
#include <cstdio>

namespace tessaro::ucc {

namespace {

bool isNotAscii(char letter) {
    return static_cast<unsigned char>(letter) > 0x7F;
}

}  // namespace

void Console::print(const std::string& line) const {
    std::string bytes = encodePiece(line + "\n", encoding_).value_or("?\n");
    if (garbled_) std::ranges::replace_if(bytes, isNotAscii, '?');
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
    std::fflush(stdout);
}

}  // namespace tessaro::ucc
