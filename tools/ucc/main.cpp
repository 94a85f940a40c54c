// tessaro-ucc compress FILE, or decompress FILE: stands in for the game's tool of that name, so
// that the batches can be tried and tested without the game. It belongs into a System folder.

#include <cstdio>
#include <exception>
#include <string_view>

#include "platform/files/host.h"
#include "tools/ucc/commandlets.h"

int main(int argc, char** argv) {
    const std::string_view job = argc == 3 ? argv[1] : "";
    if (job != "compress" && job != "decompress") {
        std::fputs("Usage: ucc compress FILE\n       ucc decompress FILE.uz\n", stderr);
        return 2;
    }
    try {
        using namespace tessaro;
        const ucc::Commandlets commandlets(executablePath().parent_path(),
                                           ucc::mannerFromEnvironment());
        job == "compress" ? commandlets.compress(argv[2]) : commandlets.decompress(argv[2]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ucc: %s\n", error.what());
        return 1;
    }
}
