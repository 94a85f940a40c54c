#include "platform/posix/wineprefix.h"

#include <cstdlib>

#include "platform/files/drives.h"
#include "platform/posix/home.h"
#include "platform/text/ascii.h"

namespace tessaro {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view driveFolder = "drive_c";
constexpr std::string_view linksFolder = "dosdevices";

HostPath winePrefix() {
    const char* prefix = std::getenv("WINEPREFIX");
    return prefix && *prefix ? HostPath(prefix) : homeFolder() / ".wine";
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
    fs::directory_iterator links(prefix / linksFolder, error);
    for (; !error && links != fs::directory_iterator(); links.increment(error)) {
        const char letter = letterOf(links->path().filename().native());
        if (letter) addDrive(drives, letter, links->path());
    }
    addDrive(drives, 'C', prefix / driveFolder);
    addDrive(drives, 'Z', "/");
    return drives;
}

bool liesInWinePrefix(const HostPath& folder) {
    std::error_code error;
    HostPath above = fs::weakly_canonical(folder, error);
    for (; above.has_relative_path(); above = above.parent_path()) {
        const bool drive = above.filename() == driveFolder;
        if (drive && fs::is_directory(above.parent_path() / linksFolder, error)) return true;
    }
    return false;
}

}  // namespace tessaro
