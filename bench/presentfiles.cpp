#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>

#include "bench/cachefolder.h"
#include "bench/figure.h"
#include "bench/figures.h"

namespace tessaro::bench {
namespace {

namespace fs = std::filesystem;

constexpr int fileCount = 200;
constexpr std::size_t fileSize = 1'000'000;
constexpr int rounds = 15;
constexpr double mark = 1.05;
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

// Both sides begin with the five folders, empty. What the last one left is set aside without its
// bytes: some file systems try the places of files that were deleted a moment ago one by one before
// they take another for a new one, and that is not to be measured.
void emptyDestination(const World& world) {
    static int emptied = 0;
    const HostPath out = world.at("C:\\Out");
    const HostPath aside = world.at("C:\\Aside" + std::to_string(emptied++));
    if (fs::exists(out)) {
        fs::rename(out, aside);
        for (const auto& each : fs::recursive_directory_iterator(aside))
            if (each.is_regular_file()) fs::resize_file(each, 0);
    }
    for (const char* folder : folders) world.makeFolder(std::string("C:\\Out\\") + folder);
}

void extractAll(World& world) {
    if (extract(world).copied != fileCount) throw std::runtime_error("not all extracted");
}

void flush(const HostPath& path) {
    const int opened = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = opened != -1 && ::fsync(opened) == 0;
    if (opened != -1) ::close(opened);
    if (!flushed) throw std::runtime_error("cannot flush " + path.string());
}

// With the least that makes a copy safe against a power cut: its bytes are on the disk before it
// has its name, and the name before the next step.
void copyEachFile(const World& world) {
    const HostPath cache = world.at(cacheFolder);
    const HostPath out = world.at("C:\\Out");
    for (int i = 0; i < fileCount; ++i) {
        std::string folder(typeOf(i).folder);
        folder.pop_back();
        const HostPath beside = out / folder / "copy.tmp";
        fs::copy_file(cache / (guidOf(i) + ".uxx"), beside);
        flush(beside);
        fs::rename(beside, out / folder / trueName(i));
        flush(out / folder);
    }
}

}  // namespace

// The processor's time has the kernel's copying in it. By the clock both sides wait for the disk as
// often.
bool extractPresentFiles(const Place& place) {
    World world(place);
    fillCacheFolder(world);
    const auto timed = [&](const std::function<void()>& work) {
        emptyDestination(world);
        return costOf(work);
    };
    const CostComparison compared = takeTurns(
        rounds, [&] { return timed([&] { extractAll(world); }); },
        [&] { return timed([&] { copyEachFile(world); }); });
    const bool cheap = report(on(place, "extraction, 200 files of 1 MB, processor"),
                              compared.processor, "ms", mark);
    return report(on(place, "extraction, 200 files of 1 MB, clock"), compared.clock, "ms", mark) &&
           cheap;
}

}  // namespace tessaro::bench
