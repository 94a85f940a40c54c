// tessaro-ut [ARGUMENT...]: stands in for the game itself. It notes what it was started with, the
// program and each argument on a line of its own, in UnrealTournament.cmdline beside itself.

#include <exception>
#include <fstream>

#include "platform/files/host.h"
#include "platform/outside/arguments.h"

int main(int argc, char** argv) {
    try {
        std::ofstream note(tessaro::executablePath().parent_path() / "UnrealTournament.cmdline",
                           std::ios::binary);
        for (const std::string& each : tessaro::programArguments(argc, argv)) note << each << '\n';
        note.close();
        return note ? 0 : 1;
    } catch (const std::exception&) {
        return 1;
    }
}
