#include "bench/world.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <stdexcept>

namespace tessaro::bench {
namespace {

namespace fs = std::filesystem;

HostPath makeFolderIn(const HostPath& above) {
    std::random_device chance;
    const HostPath folder = fs::canonical(above) / ("tessaro-bench-" + std::to_string(chance()));
    if (!fs::create_directory(folder)) throw std::runtime_error("taken: " + folder.string());
    return folder;
}

// Folders that were used, until the last figure was taken: a disk may pass over the places of files
// deleted a moment ago one by one before it finds one for a new file, and those of 32,000 would be
// most of the next figure.
struct Leftovers {
    ~Leftovers() {
        std::error_code ignored;
        for (const HostPath& folder : folders) fs::remove_all(folder, ignored);
    }
    std::vector<HostPath> folders;
} leftovers;

}  // namespace

World::World(const HostPath& above)
    : start_(fs::current_path()),
      folder_(makeFolderIn(above)),
      host_(makeHost()),
      drives_{{'C', folder_ / "drive_c"}, {'Z', "/"}} {
    fs::create_directories(folder_ / "drive_c" / "Tessaro");
    fs::create_directories(folder_ / "dosdevices");
    fs::create_directory_symlink("../drive_c", folder_ / "dosdevices" / "c:");
    fs::create_directory_symlink("/", folder_ / "dosdevices" / "z:");
    fs::current_path(folder_ / "drive_c");
}

World::~World() {
    std::error_code ignored;
    fs::current_path(start_, ignored);
    leftovers.folders.push_back(folder_);
}

HostPath World::at(std::string_view gamePath) const {
    std::string tail(gamePath.substr(std::string_view("C:\\").size()));
    std::replace(tail.begin(), tail.end(), '\\', '/');
    return folder_ / "drive_c" / tail;
}

void World::write(std::string_view gamePath, std::string_view bytes) const {
    const HostPath file = at(gamePath);
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + file.string());
}

void World::makeFolder(std::string_view gamePath) const {
    fs::create_directories(at(gamePath));
}

Dialogs& noDialogs() {
    static NoDialogs dialogs;
    return dialogs;
}

FreshProgram::FreshProgram(World& world, Dialogs& dialogs)
    : processes_(makeProcesses(world.host(), world.drives(), [] {})),
      program(world.host(), world.drives(), {dialogs, sounds_, *processes_, events_},
              {"C:\\Tessaro", "tessaro"}) {
    program.settings.Sounds = "0";
    program.gamePaths.UTPath = "C:\\UnrealTournament";
    program.gamePaths.UTCachePath = "C:\\UnrealTournament\\Cache";
    program.gamePaths.UTMapPath = "C:\\UnrealTournament\\Maps";
    program.gamePaths.UTSysPath = "C:\\UnrealTournament\\System";
}

}  // namespace tessaro::bench
