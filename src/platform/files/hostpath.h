#pragma once

#include <string_view>

#include "platform/files/host.h"

namespace tessaro {

/// A path, or a part of one, out of UTF-8. The path's own constructor goes by the system's code page
/// where that has one; the way back, `string`, gives UTF-8 everywhere.
HostPath hostPath(std::string_view text);

}  // namespace tessaro
