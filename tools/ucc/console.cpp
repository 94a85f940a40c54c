#include "tools/ucc/console.h"

#include <cstdio>

namespace tessaro::ucc {

void Console::print(const std::string& line) const {
    const std::string bytes = encodePiece(line + "\n", encoding_).value_or("?\n");
    std::fwrite(bytes.data(), 1, bytes.size(), stdout);
    std::fflush(stdout);
}

}  // namespace tessaro::ucc
