#include <chrono>
#include <cstdlib>
#include <sstream>
#include <stdexcept>

#include "bench/child.h"
#include "bench/figure.h"
#include "bench/figures.h"
#include "bench/world.h"
#include "tools/samplegame/inifiles.h"

namespace tessaro::bench {
namespace {

constexpr int rounds = 25;
constexpr double mark = 1.30;
constexpr double nanosecondsInAMillisecond = 1e6;
constexpr double kilobytesInAMegabyte = 1024;

// What a program told at its first paint.
struct Paint {
    double milliseconds = 0;  // since the process was started
    double megabytes = 0;     // resident then
};

Paint startAndPaint(const HostPath& program) {
    const long long started =
        std::chrono::nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
    std::istringstream told(outputOf({program.string()}));
    long long painted = 0;
    double kilobytes = 0;
    if (!(told >> painted >> kilobytes))
        throw std::runtime_error(program.string() + " painted nothing");
    return {static_cast<double>(painted - started) / nanosecondsInAMillisecond,
            kilobytes / kilobytesInAMegabyte};
}

// As a player's folder is after the first run: valid paths, sounds on, no splash in the way.
void makeGame(const World& world) {
    for (const char* folder : {"Cache", "Maps", "Music", "Sounds", "Textures", "Save", "Web"})
        world.makeFolder(std::string("C:\\UnrealTournament\\") + folder);
    const std::string system = "C:\\UnrealTournament\\System\\";
    world.write(system + "UnrealTournament.ini", sample::unrealTournamentIni());
    world.write(system + "User.ini", sample::userIni());
    world.write("C:\\UnrealTournament\\Cache\\cache.ini", "[Cache]\r\n");
    world.write("C:\\Tessaro\\vornx.ini",
                "[UTPaths]\r\nUTPath=C:\\UnrealTournament\r\n"
                "UTCachePath=C:\\UnrealTournament\\Cache\r\n"
                "UTMapPath=C:\\UnrealTournament\\Maps\r\n"
                "UTSysPath=C:\\UnrealTournament\\System\r\n"
                "[Misc]\r\nSounds=1\r\nAutoSave=1\r\nShowSplash=0\r\nTimesUsed=1\r\nSkin=0\r\n"
                "[Common]\r\nVORNX=C:\\UTMaps\r\nDefUser=Player\r\nASCIIFont=MS Sans\r\n"
                "WindowSize=0\r\n");
}

// Copies a program into the world, where its settings lie beside it.
HostPath install(const World& world, const std::string& name) {
    const HostPath installed = world.at("C:\\Tessaro\\" + name);
    std::filesystem::copy_file(executablePath().parent_path() / name, installed);
    return installed;
}

}  // namespace

// On a memory file system: the program writes its count of runs before it shows anything, and how
// long the disk's flush takes is the disk's affair.
bool firstPaint() {
    World world("/dev/shm");
    makeGame(world);
    ::setenv("WINEPREFIX", world.folder().c_str(), 1);
    const HostPath ours = install(world, "tessaro-bench-program");
    const HostPath empty = install(world, "tessaro-bench-empty");
    std::vector<double> oursMemory;
    std::vector<double> emptyMemory;
    const auto start = [](const HostPath& program, std::vector<double>& memory) {
        const Paint paint = startAndPaint(program);
        memory.push_back(paint.megabytes);
        return paint.milliseconds;
    };
    const Medians times = takeTurns(
        rounds, [&] { return start(ours, oursMemory); }, [&] { return start(empty, emptyMemory); });
    const bool soon = report("first paint of the main window", times, "ms", mark);
    const bool small =
        report("memory at the first paint", {median(oursMemory), median(emptyMemory)}, "MB", mark);
    return soon && small;
}

}  // namespace tessaro::bench
