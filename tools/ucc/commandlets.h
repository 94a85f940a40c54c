#pragma once

#include <filesystem>

#include "tools/ucc/console.h"
#include "tools/ucc/manner.h"
#include "tools/ucc/uzfile.h"

namespace tessaro::ucc {

/// The two jobs of the game's tool that the stand-in does. Each raises std::runtime_error or
/// std::filesystem::filesystem_error, and then leaves no file.
class Commandlets {
  public:
    /// `systemFolder` is where the running program lies. Relative paths begin there, not in the
    /// caller's folder.
    Commandlets(std::filesystem::path systemFolder, Manner manner);

    /// Leaves `file` + ".uz" beside the file, over what is there.
    void compress(const std::filesystem::path& file) const;
    /// Leaves the package in the system folder, wherever the compressed file lies, under the name
    /// that is stored in it.
    void decompress(const std::filesystem::path& file) const;

  private:
    void begin(const char* commandlet) const;
    void write(const std::filesystem::path& file, const std::string& bytes) const;

    std::filesystem::path systemFolder_;
    Manner manner_;
    Console console_;
};

}  // namespace tessaro::ucc
