#pragma once

#include <string_view>

#include "platform/files/host.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

/// UTF-8 as the system's paths hold it.
HostPath::string_type hostText(std::string_view text);

/// A path, or a part of one, out of UTF-8. The path's own constructor goes by the system's code
/// page where that has one; the way back, `string`, gives UTF-8 everywhere.
inline HostPath hostPath(std::string_view text) {
    return {hostText(text)};
}

/// A name in a folder, whatever its letters are: put behind one by the path's own operator, "x:y"
/// would lead to another drive.
inline HostPath inFolder(const HostPath& folder, std::string_view name) {
    HostPath::string_type path = folder.native();
    if (path.back() != HostPath::preferred_separator) path += HostPath::preferred_separator;
    path += hostText(name);
    return path;
}

/// Raises what `Host::status` raises.
inline bool isFolder(Host& host, const HostPath& path) {
    const auto status = host.status(path);
    return status && status->folder;
}

/// What is known of a name; nothing also where one may not look.
inline std::optional<HostStatus> visibleStatus(Host& host, const HostPath& path) {
    // Not assigned to a variable: GCC 12 takes the failing call to have written it, when
    // optimizing, and leaves out what it held before.
    try {
        return host.status(path);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

}  // namespace tessaro
