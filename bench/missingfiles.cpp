#include <sys/stat.h>

#include <fstream>
#include <stdexcept>

#include "bench/cachefolder.h"
#include "bench/figure.h"
#include "bench/figures.h"

namespace tessaro::bench {
namespace {

constexpr int fileCount = 32'000;
constexpr int rounds = 9;
constexpr double mark = 1.50;

void fillCacheFolder(const World& world) {
    std::string index = "[Cache]\r\n";
    for (int i = 0; i < fileCount; ++i) {
        index += guidOf(i) + "=DM-Map" + std::to_string(i) + ".unr\r\n";
        world.write(std::string(cacheFolder) + '\\' + guidOf(fileCount + i) + ".uxx", "");
    }
    world.write(std::string(cacheFolder) + "\\cache.ini", index);
}

void missAll(World& world) {
    if (extract(world).missed != fileCount) throw std::runtime_error("not all were missed");
}

void statEachLine(const std::string& folder) {
    std::ifstream index(folder + "/cache.ini");
    std::string line;
    int missing = 0;
    while (std::getline(index, line)) {
        struct ::stat status = {};
        missing += ::stat((folder + '/' + line.substr(0, 32) + ".uxx").c_str(), &status) != 0;
    }
    if (missing != fileCount + 1) throw std::runtime_error("not all were missed");
}

}  // namespace

// Processor time: the folder is in memory, and nothing waits.
bool extractMissingFiles(const Place& place) {
    World world(place);
    fillCacheFolder(world);
    world.makeFolder("C:\\Out");
    const std::string folder = world.at(cacheFolder);
    const Medians medians = takeTurns(
        rounds, [&] { return cpuMilliseconds([&] { missAll(world); }); },
        [&] { return cpuMilliseconds([&] { statEachLine(folder); }); });
    return report(on(place, "extraction, 32,000 missing files"), medians, "ms", mark);
}

}  // namespace tessaro::bench
