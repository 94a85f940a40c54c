#include <stdlib.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>

#include "bench/cachefolder.h"
#include "bench/figure.h"
#include "bench/figures.h"
#include "platform/files/nativegame.h"

namespace tessaro::bench {
namespace {

constexpr int fileCount = 32'000;
constexpr int rounds = 9;
constexpr double mark = 1.50;

void write(const HostPath& file, std::string_view bytes) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << bytes;
}

void fillCacheFolder(const HostPath& folder) {
    std::string index = "[Cache]\r\n";
    for (int i = 0; i < fileCount; ++i) {
        index += guidOf(i) + "=DM-Map" + std::to_string(i) + ".unr\r\n";
        write(folder / (guidOf(fileCount + i) + ".uxx"), "");
    }
    write(folder / "cache.ini", index);
}

void missAll(World& world, const std::string& cache) {
    if (extract(world, cache).missed != fileCount) throw std::runtime_error("not all were missed");
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

// The home folder is another one as long as this lives.
class OtherHome {
  public:
    explicit OtherHome(const HostPath& home) {
        if (const char* old = std::getenv("HOME")) old_ = old;
        std::filesystem::create_directories(home);
        ::setenv("HOME", home.c_str(), 1);
    }
    OtherHome(const OtherHome&) = delete;
    OtherHome& operator=(const OtherHome&) = delete;
    ~OtherHome() { old_ ? ::setenv("HOME", old_->c_str(), 1) : ::unsetenv("HOME"); }

  private:
    std::optional<std::string> old_;
};

// Processor time: the folder is in memory, and nothing waits.
bool missingFiles(const std::string& name, World& world, const std::string& cache,
                  const HostPath& folder) {
    fillCacheFolder(folder);
    world.makeFolder("C:\\Out");
    const Comparison compared = takeTurns(
        rounds, [&] { return cpuMilliseconds([&] { missAll(world, cache); }); },
        [&] { return cpuMilliseconds([&] { statEachLine(folder.string()); }); });
    return report(name, compared, "ms", mark);
}

}  // namespace

bool extractMissingFiles(const Place& place) {
    World world(place);
    return missingFiles(on(place, "extraction, 32,000 missing files"), world, cacheFolder,
                        world.at(cacheFolder));
}

bool extractMissingNativeFiles(const Place& place) {
    World world(place);
    const HostPath home = world.folder() / "home";
    const HostPath game = world.folder() / "game";
    const OtherHome other(home);
    write(game / nativeNames().folder / "ut-bin", "");
    write(game / "Cache" / (guidOf(0) + ".tmp"), "");
    const std::string cache = Paths(world.host(), world.drives()).toGame(game / "Cache");
    return missingFiles(on(place, "extraction, 32,000 missing files of a native game"), world,
                        cache, home / ".utpg" / "Cache");
}

}  // namespace tessaro::bench
