#pragma once

#include <filesystem>
#include <vector>

#include "tools/ucc/console.h"
#include "tools/ucc/manner.h"
#include "tools/ucc/uzfile.h"

namespace tessaro::ucc {

/// Where relative paths begin, not in the caller's folder.
struct Folders {
    std::vector<std::filesystem::path> read;  ///< the first in which the file is
    std::filesystem::path written;
};

/// The two jobs of the game's tool that the stand-in does. Each raises std::runtime_error or
/// std::filesystem::filesystem_error, and then leaves no file.
class Commandlets {
  public:
    Commandlets(Folders folders, Manner manner, Console console);

    /// Leaves `file` + ".uz" beside the file, over what is there; of a relative one in the folder
    /// that is written to.
    void compress(const std::filesystem::path& file) const;
    /// Leaves the package in the folder that is written to, wherever the compressed file lies,
    /// under the name that is stored in it.
    void decompress(const std::filesystem::path& file) const;

  private:
    void begin(const char* commandlet) const;
    std::filesystem::path found(const std::filesystem::path& file) const;
    void write(const std::filesystem::path& file, const std::string& bytes) const;

    Folders folders_;
    Manner manner_;
    Console console_;
};

}  // namespace tessaro::ucc
