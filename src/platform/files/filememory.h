#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/files/host.h"

namespace tessaro {

/// Remembers the file that was read last, so that many reads of a large file in a row need not read
/// it each time. It is given out only while it is certain that reading it again would give the
/// same.
class FileMemory {
  public:
    explicit FileMemory(Host& host) : host_(host) {}

    /// The full game path of the file.
    const std::string& path() const { return path_; }
    /// Whether the file is certain to be as it was read.
    bool certain();
    /// From now on, until it is let go, one look at the file is enough for all questions.
    void holdMoment(bool held) {
        held_ = held;
        looked_ = false;
    }
    /// Whether the file could be written when it was read.
    bool writable() const { return writable_; }
    /// What was read last. The same object as before if the bytes are the same.
    const std::shared_ptr<const std::string>& bytes() const { return bytes_; }

    /// Reads a file, which has this full game path. Raises what reading raises.
    void read(std::string_view path, const HostPath& file);
    /// The way from the game's path to the host's has changed while the file was being read.
    void doubt() {
        watch_.reset();
        looked_ = false;
    }

  private:
    Host& host_;
    std::string path_;
    std::shared_ptr<const std::string> bytes_;
    std::unique_ptr<FileWatch> watch_;
    bool writable_ = false;
    bool held_ = false;
    bool looked_ = false;  // in the moment that is held, and found it certain
};

}  // namespace tessaro
