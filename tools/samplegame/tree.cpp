#include "tools/samplegame/tree.h"

#include <fstream>
#include <string>
#include <system_error>

namespace tessaro::sample {

namespace fs = std::filesystem;

fs::path pathFromUtf8(std::string_view utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

Tree::Tree(const fs::path& root) : root_(root) {
    fs::create_directories(root_);
}

void Tree::makeFolder(std::string_view path) {
    fs::create_directories(root_ / pathFromUtf8(path));
}

fs::path Tree::write(std::string_view path, std::string_view bytes) {
    const fs::path target = root_ / pathFromUtf8(path);
    std::ofstream file(target, std::ios::binary | std::ios::trunc);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file)
        throw fs::filesystem_error("cannot write a file of the sample", target,
                                   std::make_error_code(std::errc::io_error));
    totalBytes_ += bytes.size();
    return target;
}

}  // namespace tessaro::sample
