#pragma once

#include <string>
#include <vector>

#include "platform/files/host.h"

namespace tessaro::bench {

/// Where a figure is taken: what a question to the system costs depends on the file system.
struct Place {
    std::string fileSystem;  ///< as the system names it, such as "ext4"
    HostPath folder;
};

/// The disk that the benchmarks were built on.
Place disk();
/// The memory, where nothing waits.
Place memory();

/// The name of a figure that is taken there.
std::string on(const Place& place, const std::string& figure);

}  // namespace tessaro::bench
