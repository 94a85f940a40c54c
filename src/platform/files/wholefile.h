#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/host.h"

namespace tessaro {

/// The program's one way to write a file: a crash, a kill or a full disk leaves the old file or the
/// new one. It goes through a link if it is one, and stays what it was: its owner, its permissions,
/// its other names. Raises 75 for a file that is read-only or is a folder, 76 for a missing folder,
/// 61 for a full disk. How this is done is told in wholefile.cpp.
void replaceFile(Host& host, const HostPath& file, std::string_view bytes);

/// What a file's bytes are to become, empty ones standing for no file; nothing leaves it as it is.
using FileChange = std::function<std::optional<std::string>(std::string_view bytes)>;

/// Reads a file, changes its bytes and replaces it, as one step: two of our programs that change
/// one file take turns, and where another program changed it meanwhile the change is made again, to
/// what it holds now. Raises 70 if that never ends, or if another program has the file open for
/// writing and does not come to an end, else what reading and `replaceFile` raise.
void changeFile(Host& host, const HostPath& file, const FileChange& change);

/// Raises the 75 or 76 that `replaceFile` would, and writes nothing.
void requireReplaceable(Host& host, const HostPath& file);

/// The same as `replaceFile` with the contents of another file. When this returns they are on the
/// disk, so that the other one can be deleted. Raises 53 without that one, 75 if it is a folder and
/// 70 if both are the same file.
void replaceByCopy(Host& host, const HostPath& from, const HostPath& to);

/// Whether a host name is that of a file that a write of ours has under way, or that a killed one
/// left. It is in nobody's listings.
bool isUnderWay(std::string_view hostName);

}  // namespace tessaro
