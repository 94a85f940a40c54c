#pragma once

#include <memory>

#include "platform/files/host.h"
#include "platform/posix/descriptor.h"

namespace tessaro {

/// A watch over an opened file, to be begun before it is read. Nothing where not every change can
/// be told of: on a disk that others may write past this system, while somebody has the file open
/// for writing, and on systems other than Linux. A new watch ends the one before.
std::unique_ptr<FileWatch> watchFile(const Descriptor& file);

}  // namespace tessaro
