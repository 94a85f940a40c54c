#include "platform/posix/descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {

void raiseErrno(const HostPath& path) {
    const int error = errno == EDQUOT ? ENOSPC : errno;  // a full share of the disk is a full disk
    raiseHostError({error, std::generic_category()}, path.native());
}

const char* systemName(const HostPath& path) {
    if (path.native().find('\0') != std::string::npos)
        throw RunTimeError(errors::BadFileNumber, path.native());
    return path.c_str();
}

Descriptor::Descriptor(const HostPath& path, int flags, mode_t mode) : name_(path.native()) {
    const auto open = [&](int how) {
        return uninterrupted([&] { return ::open(systemName(path), how | O_CLOEXEC, mode); });
    };
    fd_ = open(flags);
    // A file that somebody has borrowed is given back soon. (A pipe fails in another way.)
    if (fd_ == -1 && errno == EWOULDBLOCK) fd_ = open(flags & ~O_NONBLOCK);
    if (fd_ == -1) raiseErrno(path);
}

Descriptor::Descriptor(int opened, const HostPath& path) : name_(path.native()), fd_(opened) {
    if (fd_ == -1) raiseErrno(path);
}

Descriptor::~Descriptor() {
    if (fd_ != -1) ::close(fd_);
}

std::size_t Descriptor::size() const {
    struct stat info = {};
    if (::fstat(fd_, &info) == -1) raiseErrno(path());
    return static_cast<std::size_t>(info.st_size);
}

void Descriptor::write(std::string_view bytes) const {
    while (!bytes.empty()) {
        const ssize_t done =
            uninterrupted([&] { return ::write(fd_, bytes.data(), bytes.size()); });
        if (done == -1) raiseErrno(path());
        bytes.remove_prefix(static_cast<std::size_t>(done));
    }
}

std::size_t Descriptor::read(char* buffer, std::size_t size) const {
    const ssize_t done = uninterrupted([&] { return ::read(fd_, buffer, size); });
    if (done == -1) raiseErrno(path());
    return static_cast<std::size_t>(done);
}

void Descriptor::flush() const {
    if (uninterrupted([&] { return ::fsync(fd_); }) == -1) raiseErrno(path());
}

void Descriptor::close() {
    // Not repeated after a signal: the descriptor is gone by then and may be someone else's.
    if (::close(std::exchange(fd_, -1)) == -1 && errno != EINTR) raiseErrno(path());
}

Descriptor openRegular(const HostPath& file) {
    Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    struct stat info = {};
    if (::fstat(opened.get(), &info) == -1) raiseErrno(file);
    if (!S_ISREG(info.st_mode)) throw RunTimeError(errors::PathFileAccess, file.native());
    return opened;
}

}  // namespace tessaro
