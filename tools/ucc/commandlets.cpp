#include "tools/ucc/commandlets.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/files/hostpath.h"

namespace tessaro::ucc {

namespace {

namespace fs = std::filesystem;

// Opening a pipe waits for somebody at its other end.
void requireNoPipe(const fs::path& file) {
    if (fs::exists(file) && !fs::is_regular_file(file))
        throw std::runtime_error("no file: " + file.string());
}

std::string read(const fs::path& file) {
    requireNoPipe(file);
    std::ifstream stream(file, std::ios::binary);
    if (!stream) throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), {}};
}

void readInputToItsEnd() {
    while (std::getchar() != EOF) {
    }
}

std::string percent(std::size_t part, std::size_t whole) {
    return std::to_string(whole == 0 ? 100 : part * 100 / whole) + "%";
}

}  // namespace

Commandlets::Commandlets(Folders folders, Manner manner, Console console)
    : folders_(std::move(folders)), manner_(manner), console_(console) {}

void Commandlets::compress(const fs::path& file) const {
    begin("IpDrv.CompressCommandlet");
    const fs::path source = found(file);
    const std::string name = source.filename().string();
    const std::string bytes = read(source);
    console_.print("Compressing " + name + " (" + std::to_string(bytes.size()) + " bytes)");
    const std::string packed = compressed({name, bytes});
    const fs::path target = outputName((folders_.written / file) += ".uz", manner_);
    write(target, packed);
    console_.print("Compressed " + name + " -> " + target.filename().string() + " (" +
                   percent(packed.size(), bytes.size()) + ")");
}

void Commandlets::decompress(const fs::path& file) const {
    begin("IpDrv.DecompressCommandlet");
    const fs::path source = found(file);
    const Package package = decompressed(read(source));
    // A stored name that leads to another folder is not followed.
    const fs::path target =
        outputName(folders_.written / hostPath(package.name).filename(), manner_);
    write(target, package.bytes);
    console_.print("Decompressed " + source.filename().string() + " -> " +
                   target.filename().string());
}

fs::path Commandlets::found(const fs::path& file) const {
    for (const fs::path& folder : folders_.read) {
        if (fs::exists(folder / file)) return folder / file;
    }
    return folders_.written / file;
}

void Commandlets::begin(const char* commandlet) const {
    console_.print("=== ucc, a stand-in for trying things out ===\n");
    console_.print(std::string("Executing Class ") + commandlet);
    if (manner_ == Manner::Crash) std::abort();
    if (manner_ == Manner::Slow) dawdle();
    if (manner_ == Manner::ReadsInput) readInputToItsEnd();
}

void Commandlets::write(const fs::path& file, const std::string& bytes) const {
    if (manner_ == Manner::Silent) return;
    requireNoPipe(file);
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    if (!stream) throw std::runtime_error("cannot write " + file.string());
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (stream) return;
    fs::remove(file);
    throw std::runtime_error("cannot write all of " + file.string());
}

}  // namespace tessaro::ucc
