#include "support/testworld.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "platform/files/hostpath.h"
#include "support/disk.h"

namespace tessaro::test {

namespace fs = std::filesystem;

namespace {

HostPath makeTemporaryFolder(const HostPath& above) {
    std::random_device chance;
    for (;;) {
        const HostPath folder = fs::canonical(above) / ("tessaro-test-" + std::to_string(chance()));
        if (fs::create_directory(folder)) return folder;
    }
}

}  // namespace

TemporaryFolder::TemporaryFolder(const HostPath& above)
    : start_(fs::current_path()), path_(makeTemporaryFolder(above)) {}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::current_path(start_, ignored);
    fs::remove_all(path_, ignored);
}

TestWorld::TestWorld()
    : real_(makeHost()),
      host(*real_),
      drives(makePrefix(prefix())),
      paths(host, drives),
      files(host, paths),
      table(files),
      profile(files) {}

DriveMap TestWorld::makePrefix(const HostPath& prefix) {
    fs::create_directories(prefix / "drive_c");
    fs::create_directories(prefix / "dosdevices");
    if (hasLinks()) {
        fs::create_directory_symlink("../drive_c", prefix / "dosdevices" / "c:");
        fs::create_directory_symlink("/", prefix / "dosdevices" / "z:");
    }
    fs::current_path(prefix / "drive_c");
    return {{'C', prefix / "drive_c"}, {'Z', prefix.root_path()}};
}

HostPath TestWorld::at(std::string_view gamePath) const {
    std::string tail(gamePath.substr(gamePath.find(':') + 1));
    std::replace(tail.begin(), tail.end(), '\\', '/');
    tail.erase(0, tail.find_first_not_of('/'));
    return tail.empty() ? driveC() : (driveC() / hostPath(tail)).make_preferred();
}

void TestWorld::writeHost(const HostPath& file, std::string_view bytes) {
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) throw std::runtime_error("cannot write " + file.string());
}

std::string TestWorld::readHost(const HostPath& file) {
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

bool TestWorld::exists(std::string_view gamePath) const {
    return fs::exists(at(gamePath));
}

void TestWorld::makeFolder(std::string_view gamePath) const {
    fs::create_directories(at(gamePath));
}

std::vector<std::string> TestWorld::namesIn(const HostPath& folder) {
    std::vector<std::string> found;
    for (const auto& entry : fs::directory_iterator(folder))
        found.push_back(entry.path().filename().string());
    std::sort(found.begin(), found.end());
    return found;
}

}  // namespace tessaro::test
