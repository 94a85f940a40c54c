#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/files/drives.h"
#include "platform/text/ascii.h"

namespace tessaro {

namespace {

namespace fs = std::filesystem;

HostPath home() {
    if (const char* fromEnvironment = std::getenv("HOME"); fromEnvironment && *fromEnvironment)
        return fromEnvironment;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

HostPath winePrefix() {
    const char* prefix = std::getenv("WINEPREFIX");
    return prefix && *prefix ? HostPath(prefix) : home() / ".wine";
}

// Adds nothing if there is no such folder, as for a link whose disk is not plugged in.
void addDrive(DriveMap& drives, char letter, const HostPath& folder) {
    std::error_code error;
    const HostPath root = fs::canonical(folder, error);
    if (!error && fs::is_directory(root, error)) drives.emplace(letter, root);
}

// Gives 'D' for "d:", 0 for everything else: "d::" is the raw device, "com1" a port.
char letterOf(const std::string& link) {
    if (link.size() != 2 || link[1] != ':' || !isAsciiLetter(link[0])) return 0;
    return upperAscii(link[0]);
}

}  // namespace

DriveMap hostDrives() {
    DriveMap drives;
    const HostPath prefix = winePrefix();
    std::error_code error;
    fs::directory_iterator links(prefix / "dosdevices", error);
    for (; !error && links != fs::directory_iterator(); links.increment(error)) {
        const char letter = letterOf(links->path().filename().native());
        if (letter) addDrive(drives, letter, links->path());
    }
    addDrive(drives, 'C', prefix / "drive_c");
    addDrive(drives, 'Z', "/");
    return drives;
}

}  // namespace tessaro
