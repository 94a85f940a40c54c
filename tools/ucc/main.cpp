// tessaro-ucc compress FILE, or decompress FILE: stands in for the game's tool of that name, so
// that the batches can be tried and tested without the game. It belongs into a System folder.

#include <cstdio>
#include <exception>
#include <string>

#include "platform/files/host.h"
#include "platform/files/hostpath.h"
#include "platform/outside/arguments.h"
#include "tools/ucc/commandlets.h"

int main(int argc, char** argv) {
    using namespace tessaro;
    const auto arguments = programArguments(argc, argv);
    const std::string job = arguments.size() == 3 ? arguments[1] : "";
    if (job != "compress" && job != "decompress") {
        std::fputs("Usage: ucc compress FILE\n       ucc decompress FILE.uz\n", stderr);
        return 2;
    }
    try {
        const ucc::Commandlets commandlets(executablePath().parent_path(),
                                           ucc::mannerFromEnvironment());
        const HostPath file = hostPath(arguments[2]);
        job == "compress" ? commandlets.compress(file) : commandlets.decompress(file);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ucc: %s\n", error.what());
        return 1;
    }
}
