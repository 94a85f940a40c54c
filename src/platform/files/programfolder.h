#pragma once

#include "platform/files/host.h"

namespace tessaro {

/// Where the program keeps its own files (settings, players, servers): beside itself, so that a
/// copy can be carried about; or, where nothing may be written there, as in an installation for all
/// users of a system, in a folder of the user, which is made here if need be. Should that fail as
/// well, the folder beside it is given, and the first file to be written tells the user why.
HostPath programFolder(Host& host, const HostPath& executable, const HostPath& userFolder);

/// The user's folder for that: `tessaro` in `$XDG_DATA_HOME` or `~/.local/share`, on Windows
/// `Tessaro` in `%LOCALAPPDATA%`. It need not be there.
HostPath userDataFolder();

}  // namespace tessaro
