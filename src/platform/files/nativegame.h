#pragma once

#include <optional>
#include <string>

#include "platform/files/host.h"

namespace tessaro {

/// How the game names what differs by machine.
struct NativeNames {
    std::string folder;  ///< of the programs, such as "System64"
    std::string suffix;  ///< of a program's name, such as "-amd64"; empty for another machine
};

/// For this machine. A game for it may lie in the folder "System" as well, and its programs may be
/// called `ut-bin` and `ucc-bin` without a suffix.
NativeNames nativeNames();

/// A game that was built for this system, not for Windows.
struct NativeGame {
    HostPath programs;  ///< the folder of its programs, which they start from
    HostPath ucc;       ///< empty if there is none
    HostPath game;      ///< empty if there is none
    HostPath home;      ///< where it writes to, there or not; empty if the game cannot use it
};

/// The game of this kind in a folder. Nothing where the folder holds none, or where it holds the
/// Windows game too and lies in a Wine prefix: that one is played through Wine, and has its files
/// beside itself. Nothing on a system that no such game was built for.
std::optional<NativeGame> nativeGameIn(Host& host, const HostPath& folder);

}  // namespace tessaro
