#pragma once

#include <sys/types.h>

#include <cerrno>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files/host.h"

namespace tessaro {

/// Raises what `errno` says.
[[noreturn]] void raiseErrno(const HostPath& path);

/// A path as the system's calls take it. Raises 52 for one with a NUL in it: they would read it
/// only up to there, and mean another file.
const char* systemName(const HostPath& path);

/// Repeats a call that a signal interrupted.
template <class Call>
auto uninterrupted(Call&& call) {
    auto result = call();
    while (result == -1 && errno == EINTR) result = call();
    return result;
}

/// An open file, closed at its end.
class Descriptor {
  public:
    /// Raises what opening raises.
    Descriptor(const HostPath& path, int flags, mode_t mode = 0);
    /// Takes over what another call opened. Raises `errno` for -1.
    Descriptor(int opened, const HostPath& path);
    Descriptor(Descriptor&& other) noexcept
        : name_(std::move(other.name_)), fd_(std::exchange(other.fd_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor();

    int get() const { return fd_; }
    HostPath path() const { return name_; }
    /// Bytes in the file.
    std::size_t size() const;
    void write(std::string_view bytes) const;
    /// Reads at most `size` bytes; 0 at the end of the file.
    std::size_t read(char* buffer, std::size_t size) const;
    void flush() const;
    /// Some file systems tell only now that a write failed.
    void close();

  private:
    std::string name_;  // a path would have to be taken apart for each copy of it
    int fd_;
};

/// Opens a file for reading. Raises 75 for devices and pipes, which have no end, or block.
Descriptor openRegular(const HostPath& file);

}  // namespace tessaro
