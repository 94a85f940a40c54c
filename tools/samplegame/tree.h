#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

namespace tessaro::sample {

/// A path from UTF-8, whatever the host's own narrow encoding is.
std::filesystem::path pathFromUtf8(std::string_view utf8);

/// The folder that a sample grows in.
class Tree {
  public:
    /// Makes the folder, and those above it, where they are missing.
    explicit Tree(const std::filesystem::path& root);

    /// Makes a folder under the root; `path` is relative, in UTF-8, with slashes.
    void makeFolder(std::string_view path);

    /// Writes a file, replacing an older one, and returns its full path. Raises
    /// std::filesystem::filesystem_error where the disk or the folder refuses.
    std::filesystem::path write(std::string_view path, std::string_view bytes);

    /// Bytes written so far.
    std::uintmax_t totalBytes() const { return totalBytes_; }

  private:
    std::filesystem::path root_;
    std::uintmax_t totalBytes_ = 0;
};

}  // namespace tessaro::sample
