// tessaro-ut [ARGUMENT...]: stands in for the game itself. It notes what it was started with, the
// program and each argument on a line of its own, in UnrealTournament.cmdline beside itself, or,
// under a name such as ut-bin-amd64, in the player's folder.

#include <exception>
#include <fstream>

#include "platform/files/host.h"
#include "platform/outside/arguments.h"
#include "tools/ucc/nativestart.h"

int main(int argc, char** argv) {
    try {
        const tessaro::HostPath program = tessaro::executablePath();
        const auto start = tessaro::ucc::NativeStart::of(program);
        const tessaro::HostPath folder = start ? start->written() : program.parent_path();
        std::ofstream note(folder / "UnrealTournament.cmdline", std::ios::binary);
        for (const std::string& each : tessaro::programArguments(argc, argv)) note << each << '\n';
        note.close();
        return note ? 0 : 1;
    } catch (const std::exception&) {
        return 1;
    }
}
