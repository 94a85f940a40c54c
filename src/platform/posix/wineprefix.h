#pragma once

#include "platform/files/host.h"

namespace tessaro {

/// Whether a folder lies on the drive C: of a Wine prefix, be it ours or, as the launchers of games
/// have them, another one.
bool liesInWinePrefix(const HostPath& folder);

}  // namespace tessaro
