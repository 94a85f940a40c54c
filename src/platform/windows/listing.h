#pragma once

#include <vector>

#include "platform/files/host.h"

namespace tessaro {

/// What `Host::listNames` gives. A name that is no proper UTF-16 is left out: nothing could be
/// asked about it.
std::vector<ListedName> namesIn(const HostPath& folder);

}  // namespace tessaro
