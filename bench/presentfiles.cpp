#include <stdexcept>

#include "bench/cachefolder.h"
#include "bench/figure.h"
#include "bench/figures.h"

namespace tessaro::bench {
namespace {

namespace fs = std::filesystem;

constexpr int fileCount = 200;
constexpr std::size_t fileSize = 1'000'000;
constexpr int rounds = 9;
constexpr double mark = 1.10;
constexpr const char* folders[] = {"maps", "system", "textures", "sounds", "music"};

const FileType& typeOf(int number) {
    return FileTypeTable[static_cast<std::size_t>(number) % std::size(FileTypeTable)];
}

std::string trueName(int number) {
    return "Package" + std::to_string(number) + std::string(typeOf(number).extension);
}

void fillCacheFolder(const World& world) {
    std::string index = "[Cache]\r\n";
    for (int i = 0; i < fileCount; ++i) {
        index += guidOf(i) + '=' + trueName(i) + "\r\n";
        world.write(std::string(cacheFolder) + '\\' + guidOf(i) + ".uxx",
                    std::string(fileSize, static_cast<char>('a' + i % 26)));
    }
    world.write(std::string(cacheFolder) + "\\cache.ini", index);
}

// Both sides begin with the five folders, empty.
void emptyDestination(const World& world) {
    fs::remove_all(world.at("C:\\Out"));
    for (const char* folder : folders) world.makeFolder(std::string("C:\\Out\\") + folder);
}

void extractAll(World& world) {
    if (extract(world).copied != fileCount) throw std::runtime_error("not all extracted");
}

void copyEachFile(const World& world) {
    const HostPath cache = world.at(cacheFolder);
    const HostPath out = world.at("C:\\Out");
    for (int i = 0; i < fileCount; ++i) {
        std::string folder(typeOf(i).folder);
        folder.pop_back();
        fs::copy_file(cache / (guidOf(i) + ".uxx"), out / folder / trueName(i));
    }
}

}  // namespace

// Processor time, the kernel's copying included: nobody waits for the disk, and when the kernel
// gets round to writing is its own affair.
bool extractPresentFiles() {
    World world;
    fillCacheFolder(world);
    const auto timed = [&](const std::function<void()>& work) {
        emptyDestination(world);
        return cpuMilliseconds(work);
    };
    const Medians medians = takeTurns(
        rounds, [&] { return timed([&] { extractAll(world); }); },
        [&] { return timed([&] { copyEachFile(world); }); });
    return report("extraction, 200 files of 1 MB", medians, "ms", mark);
}

}  // namespace tessaro::bench
