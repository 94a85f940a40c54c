#include <stdexcept>

#include "bench/child.h"
#include "bench/figure.h"
#include "bench/figures.h"
#include "bench/world.h"
#include "compress/compressbatch.h"
#include "tools/ucc/programs.h"

namespace tessaro::bench {
namespace {

namespace fs = std::filesystem;

constexpr int fileCount = 100;
constexpr int rounds = 11;
constexpr double mark = 1.15;

// Watches a batch without doing anything.
class NoObserver : public BatchObserver {
  public:
    void setRunning(bool) override {}
    bool abandoned() override { return false; }
    void showExisting(int) override {}
    void showProgress(int) override {}
    void closeTool() override {}
};

std::string mapName(int number) {
    return "DM-Map" + std::to_string(number) + ".unr";
}

std::string mapBytes(int number) {
    std::string bytes;
    for (int i = 0; i < 500; ++i) bytes += mapName(number) + std::to_string(i);
    return bytes;
}

void fill(const World& world) {
    world.makeFolder("C:\\UnrealTournament\\System");
    ucc::installPrograms(world.at("C:\\UnrealTournament"), executablePath().parent_path());
    for (int i = 0; i < fileCount; ++i) world.write("C:\\Maps\\" + mapName(i), mapBytes(i));
    // The packer is started for a file and its result moved, as the batch does.
    world.write("C:\\loop.sh",
                "for file in \"$2\"/*.unr; do\n"
                "    \"$1/System/UCC.exe\" compress \"$file\" >/dev/null 2>&1 </dev/null\n"
                "    mv \"$file.uz\" \"$3\"\n"
                "done\n");
}

void emptyDestination(const World& world) {
    fs::remove_all(world.at("C:\\Out"));
    world.makeFolder("C:\\Out");
}

void requireAll(const World& world) {
    const auto results = fs::directory_iterator(world.at("C:\\Out"));
    if (std::distance(fs::begin(results), fs::end(results)) != fileCount)
        throw std::runtime_error("not all files were compressed");
}

void runBatch(World& world) {
    FreshProgram fresh(world);
    fresh.program.CompressDest = "C:\\Out";
    NoObserver observer;
    CompressBatch batch(fresh.program, observer, Ucc(fresh.program));
    for (int i = 0; i < fileCount; ++i) batch.ListView1.add("C:\\Maps\\" + mapName(i));
    batch.run();
}

void runLoop(const World& world) {
    outputOf({"/bin/sh", world.at("C:\\loop.sh"), world.at("C:\\UnrealTournament"),
              world.at("C:\\Maps"), world.at("C:\\Out")});
}

}  // namespace

bool compressBatch(const Place& place) {
    World world(place);
    fill(world);
    const auto timed = [&](const std::function<void()>& work) {
        emptyDestination(world);
        const double took = wallMilliseconds(work);
        requireAll(world);
        return took;
    };
    const Comparison compared = takeTurns(
        rounds, [&] { return timed([&] { runBatch(world); }); },
        [&] { return timed([&] { runLoop(world); }); });
    return report(on(place, "compression, a batch of 100 small files"), compared, "ms", mark);
}

}  // namespace tessaro::bench
