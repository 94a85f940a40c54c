#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files/host.h"

namespace tessaro {

/// Raises what `GetLastError` says.
[[noreturn]] void raiseLastError(const HostPath& path);

/// Whether a file could bear this name. The system would read one with a NUL in it only up to
/// there, and take what stands behind a second colon for a stream beside a file's contents.
bool canBeName(const HostPath& path);

/// A path as the system's calls take it, of any length. Raises 52 for one that no file can bear.
std::wstring systemName(const HostPath& path);

/// Others may do with a file of ours what they like: the game reads, and renames, while we do.
inline constexpr DWORD sharedWithAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/// What an opened name is opened for and as.
struct Opening {
    DWORD access = 0;
    DWORD disposition = OPEN_EXISTING;
    DWORD flags = FILE_ATTRIBUTE_NORMAL;
    DWORD share = sharedWithAll;
};

/// An open file, or another thing of the system's, closed at its end.
class Handle {
  public:
    /// Raises what opening raises.
    Handle(const HostPath& path, const Opening& opening);
    /// Takes over what another call opened; null and the invalid handle stand for nothing.
    explicit Handle(HANDLE opened) : handle_(opened == INVALID_HANDLE_VALUE ? nullptr : opened) {}
    Handle(Handle&& other) noexcept
        : path_(std::move(other.path_)), handle_(std::exchange(other.handle_, nullptr)) {}
    Handle& operator=(Handle&&) = delete;
    ~Handle();

    HANDLE get() const { return handle_; }
    explicit operator bool() const { return handle_ != nullptr; }
    const HostPath& path() const { return path_; }
    BY_HANDLE_FILE_INFORMATION information() const;
    /// Whether it is a file or a folder, and no device.
    bool onDisk() const { return ::GetFileType(handle_) == FILE_TYPE_DISK; }
    /// Raises the error of the last call if it failed.
    void require(BOOL done) const {
        if (!done) raiseLastError(path_);
    }
    void write(std::string_view bytes);
    /// Reads at most `size` bytes; 0 at the end of the file.
    std::size_t read(char* buffer, std::size_t size);
    void flush() { require(::FlushFileBuffers(handle_)); }
    void close();

  private:
    HostPath path_;
    HANDLE handle_;
};

/// Opens a file for reading. Raises 75 for folders and devices.
Handle openRegular(const HostPath& file);

}  // namespace tessaro
