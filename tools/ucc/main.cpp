// tessaro-ucc compress FILE, or decompress FILE: stands in for the game's tool of that name, so
// that the batches can be tried and tested without the game. It belongs into a System folder, or,
// under a name such as ucc-bin-amd64, into that of the programs for Linux, whose ways it then has.

#include <algorithm>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/files/host.h"
#include "platform/files/hostpath.h"
#include "platform/outside/arguments.h"
#include "tools/ucc/commandlets.h"
#include "tools/ucc/nativestart.h"

namespace {

using namespace tessaro;
using Arguments = std::vector<std::string>;

int windowsTool(const HostPath& program, const Arguments& arguments) {
    const std::string job = arguments.size() == 2 ? arguments[0] : "";
    if (job != "compress" && job != "decompress") {
        std::fputs("Usage: ucc compress FILE\n       ucc decompress FILE.uz\n", stderr);
        return 2;
    }
    const ucc::Manner manner = ucc::mannerFromEnvironment();
    const auto encoding =
        manner == ucc::Manner::Utf16 ? Encoding::Utf16LittleEndian : Encoding::Utf8;
    const HostPath system = program.parent_path();
    const ucc::Commandlets commandlets({{system}, system}, manner, ucc::Console(encoding));
    const HostPath file = hostPath(arguments[1]);
    job == "compress" ? commandlets.compress(file) : commandlets.decompress(file);
    return 0;
}

bool isSwitch(const std::string& argument) {
    return argument.starts_with('-');
}

// Takes any number of files to compress and one to decompress, and no switch. A command that it
// does not know is no failure to it, and without the folder of the game's texts it knows none.
int linuxJob(const ucc::NativeStart& start, const ucc::Console& console, const Arguments& line) {
    const std::string job = line.empty() ? "" : line.front();
    const bool knows = std::filesystem::exists(start.programs().parent_path() / "SystemLocalized");
    if (!knows || (job != "compress" && job != "decompress")) {
        console.print("Commandlet " + job + " not found");
        return 0;
    }
    const Arguments files(line.begin() + 1, line.end());
    if (std::ranges::any_of(files, isSwitch)) throw std::runtime_error("Unrecognized option");
    if (job == "decompress" && files.size() != 1) throw std::runtime_error("One file at a time");
    const ucc::Commandlets commandlets({{start.written(), start.programs()}, start.written()},
                                       ucc::mannerFromEnvironment(), console);
    for (const std::string& file : files)
        job == "compress" ? commandlets.compress(hostPath(file))
                          : commandlets.decompress(hostPath(file));
    start.rewriteIni();
    return 0;
}

// All that it has to say it says on its standard output.
int linuxTool(const ucc::NativeStart& start, const Arguments& line) {
    const ucc::Console console(Encoding::Utf8, true);
    for (const std::string& each : start.lines()) console.print(each);
    try {
        return linuxJob(start, console, line);
    } catch (const std::exception& error) {
        console.print(error.what());
        return 1;
    }
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const HostPath program = executablePath();
        const Arguments line = programArguments(argc, argv);
        const Arguments arguments(line.begin() + 1, line.end());
        const auto start = ucc::NativeStart::of(program);
        return start ? linuxTool(*start, arguments) : windowsTool(program, arguments);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "ucc: %s\n", error.what());
        return 1;
    }
}
