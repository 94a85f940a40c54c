#include <windows.h>

#include "platform/files/drives.h"

namespace tessaro {

DriveMap hostDrives() {
    DriveMap drives;
    const DWORD there = ::GetLogicalDrives();
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        if ((there >> static_cast<unsigned>(letter - 'A') & 1U) == 0) continue;
        drives.emplace(letter, HostPath(std::string{letter, ':', '\\'}));
    }
    return drives;
}

}  // namespace tessaro
