#pragma once

#include <map>

#include "platform/files/host.h"

namespace tessaro {

/// Where each drive letter ('A' to 'Z') begins on the host. Each root is a canonical host path.
using DriveMap = std::map<char, HostPath>;

/// The drives of this system. Elsewhere than on Windows these are the drives of the Wine prefix
/// (`$WINEPREFIX`, else `.wine` in the home folder), where the game lives: `C:` is its `drive_c`,
/// other letters the links in its `dosdevices`; `Z:` is `/` even without a prefix.
DriveMap hostDrives();

}  // namespace tessaro
