#pragma once

#include "platform/files/host.h"

namespace tessaro {

/// The user's home folder: `$HOME`, else the account's.
HostPath homeFolder();

}  // namespace tessaro
