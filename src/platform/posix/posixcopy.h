#pragma once

#include "platform/posix/descriptor.h"

namespace tessaro {

/// Copies all that is left to read. The kernel moves the bytes where it can (file systems that
/// share blocks do not even do that).
void copyContents(Descriptor& from, Descriptor& to);

}  // namespace tessaro
