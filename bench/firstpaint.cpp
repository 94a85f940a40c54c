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
constexpr double mark = 1.15;
constexpr double memoryMark = 1.30;
constexpr double nanosecondsInAMillisecond = 1e6;
constexpr double kilobytesInAMegabyte = 1024;

// What ours does on its way, each up to the next moment that it notes.
constexpr const char* steps[] = {"process and libraries",
                                 "application object and tools",
                                 "main window and its picture",
                                 "menus",
                                 "settings",
                                 "preferences, not shown",
                                 "greeting",
                                 "showing the window",
                                 "painting it"};

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

// A program that is started up to its first paint, again and again.
class Starter {
  public:
    Starter(const World& world, const std::string& name) : program_(install(world, name)) {}

    // Milliseconds from the start of the process to the paint.
    double start();
    double megabytes() const { return median(megabytes_); }
    // Milliseconds of the step that ends at the moment of that number.
    double step(std::size_t number) const;

  private:
    HostPath program_;
    std::vector<double> megabytes_;
    std::vector<std::vector<double>> moments_;  // of each start
};

double Starter::start() {
    const auto started = std::chrono::steady_clock::now().time_since_epoch();
    std::istringstream told(outputOf({program_.string()}));
    double kilobytes = 0;
    told >> kilobytes;
    std::vector<double>& moments = moments_.emplace_back();
    for (long long moment = 0; told >> moment;) {
        const long long after = moment - std::chrono::nanoseconds(started).count();
        moments.push_back(static_cast<double>(after) / nanosecondsInAMillisecond);
    }
    if (moments.empty()) throw std::runtime_error(program_.string() + " painted nothing");
    megabytes_.push_back(kilobytes / kilobytesInAMegabyte);
    return moments.back();
}

double Starter::step(std::size_t number) const {
    std::vector<double> took;
    for (const std::vector<double>& moments : moments_) {
        if (moments.size() != std::size(steps)) throw std::runtime_error("other steps were noted");
        took.push_back(moments[number] - (number == 0 ? 0 : moments[number - 1]));
    }
    return median(std::move(took));
}

void tellSteps(const Place& place, const Starter& ours) {
    for (std::size_t i = 0; i < std::size(steps); ++i)
        tell(on(place, std::string("  ") + steps[i]), ours.step(i), "ms");
}

// What a flush of the settings takes on a disk is the disk's affair, so this has no mark.
void tellStepsOnDisk() {
    const World world(disk());
    makeGame(world);
    ::setenv("WINEPREFIX", world.folder().c_str(), 1);
    Starter ours(world, "tessaro-bench-program");
    for (int i = 0; i < rounds; ++i) ours.start();
    tellSteps(disk(), ours);
}

}  // namespace

// With a mark on a memory file system only: the program writes its count of runs before it shows
// anything.
bool firstPaint() {
    const World world(memory());
    makeGame(world);
    ::setenv("WINEPREFIX", world.folder().c_str(), 1);
    Starter ours(world, "tessaro-bench-program");
    Starter plain(world, "tessaro-bench-plain");
    const Comparison times = takeTurns(
        rounds, [&] { return ours.start(); }, [&] { return plain.start(); });
    const bool soon = report(on(memory(), "first paint of the main window"), times, "ms", mark);
    tellSteps(memory(), ours);
    tellStepsOnDisk();
    return report("memory at the first paint", {ours.megabytes(), plain.megabytes()}, "MB",
                  memoryMark) &&
           soon;
}

}  // namespace tessaro::bench
