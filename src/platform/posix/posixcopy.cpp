#include "platform/posix/posixcopy.h"

#include <unistd.h>

#include <array>

namespace tessaro {

namespace {

constexpr std::size_t bufferSize = std::size_t{64} << 10;

// Leaves off without a word where the kernel cannot do it, or claims that there is nothing to copy,
// as it does of files whose size it does not know.
void copyInKernel(Descriptor& from, Descriptor& to) {
#ifdef __linux__
    std::size_t left = from.size();
    ssize_t done = 0;
    do {
        done = uninterrupted(
            [&] { return ::copy_file_range(from.get(), nullptr, to.get(), nullptr, left, 0); });
        left -= done > 0 ? static_cast<std::size_t>(done) : 0;
    } while (done > 0 && left > 0);
    if (done == -1 && (errno == ENOSPC || errno == EDQUOT || errno == EIO)) raiseErrno(to.path());
#else
    static_cast<void>(from);
    static_cast<void>(to);
#endif
}

}  // namespace

void copyContents(Descriptor& from, Descriptor& to) {
    copyInKernel(from, to);
    // As a rule there is nothing left to read, and no page of it is touched.
    std::array<char, bufferSize> buffer;
    while (const std::size_t size = from.read(buffer.data(), buffer.size()))
        to.write({buffer.data(), size});
}

}  // namespace tessaro
