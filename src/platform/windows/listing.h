#pragma once

#include <windows.h>

#include <optional>
#include <vector>

#include "platform/files/host.h"

namespace tessaro {

/// What `Host::listNames` gives. A name that is no proper UTF-16 is left out: nothing could be
/// asked about it.
std::vector<ListedName> namesIn(const HostPath& folder);

/// What its folder's listing tells of a name. Nothing if it is not there.
std::optional<WIN32_FIND_DATAW> listedName(const HostPath& path);

}  // namespace tessaro
