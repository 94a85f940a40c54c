#pragma once

#include <string_view>

#include "platform/files/host.h"

namespace tessaro {

/// A path, or a part of one, out of UTF-8. The path's own constructor goes by the system's code
/// page where that has one; the way back, `string`, gives UTF-8 everywhere.
HostPath hostPath(std::string_view text);

/// A name in a folder, whatever its letters are: put behind one by the path's own operator, "x:y"
/// would lead to another drive.
inline HostPath inFolder(const HostPath& folder, std::string_view name) {
    HostPath::string_type path = folder.native();
    if (path.back() != HostPath::preferred_separator) path += HostPath::preferred_separator;
    path += hostPath(name).native();
    return path;
}

}  // namespace tessaro
