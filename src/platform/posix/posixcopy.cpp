#include "platform/posix/posixcopy.h"

#include <unistd.h>

#include <memory>

namespace tessaro {

namespace {

constexpr std::size_t kernelStep = std::size_t{1} << 30;
constexpr std::size_t bufferSize = std::size_t{256} << 10;

// Leaves off without a word where the kernel cannot do it, or claims that there is nothing to copy,
// as it does of files whose size it does not know.
void copyInKernel(Descriptor& from, Descriptor& to) {
#ifdef __linux__
    ssize_t done = 0;
    do {
        done = uninterrupted([&] {
            return ::copy_file_range(from.get(), nullptr, to.get(), nullptr, kernelStep, 0);
        });
    } while (done > 0);
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
    const auto buffer = std::make_unique_for_overwrite<char[]>(bufferSize);
    while (const std::size_t size = from.read(buffer.get(), bufferSize))
        to.write({buffer.get(), size});
}

}  // namespace tessaro
