#pragma once

#include <string_view>

#include "platform/files/host.h"

namespace tessaro {

/// The program's one way to write a file: beside it, flushed, renamed over, with the old file's
/// permissions, through a link if it is one. A crash or a full disk leaves the old file or the new
/// one. Raises 75 for a file that is read-only or is a folder, 76 for a missing folder, 61 for a
/// full disk; what was written beside is then removed.
void replaceFile(Host& host, const HostPath& file, std::string_view bytes);

/// Raises the 75 or 76 that `replaceFile` would, and writes nothing.
void requireReplaceable(Host& host, const HostPath& file);

/// The same for a copy, whose contents the host moves and which is not forced to the disk: a lost
/// copy can be made again.
void replaceByCopy(Host& host, const HostPath& from, const HostPath& to);

}  // namespace tessaro
