#include "platform/posix/posixcopy.h"

#include <unistd.h>

#include <memory>

namespace tessaro {

namespace {

constexpr std::size_t bufferSize = std::size_t{64} << 10;

// As much as the kernel takes at once. Leaves off without a word where it cannot do it, or claims
// that there is nothing to copy, as it does of files whose size it does not know.
void copyInKernel(Descriptor& from, Descriptor& to) {
#ifdef __linux__
    constexpr std::size_t everything = std::size_t{1} << 30;
    const ssize_t done = uninterrupted(
        [&] { return ::copy_file_range(from.get(), nullptr, to.get(), nullptr, everything, 0); });
    if (done == -1 && (errno == ENOSPC || errno == EDQUOT || errno == EIO)) raiseErrno(to.path());
#else
    static_cast<void>(from);
    static_cast<void>(to);
#endif
}

}  // namespace

void copyContents(Descriptor& from, Descriptor& to) {
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    std::size_t size = 0;
    do {
        copyInKernel(from, to);
        // As a rule there is nothing left to read.
        size = from.read(buffer.get(), bufferSize);
        to.write({buffer.get(), size});
    } while (size > 0);
}

}  // namespace tessaro
