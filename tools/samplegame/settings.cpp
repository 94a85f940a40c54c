#include "tools/samplegame/settings.h"

#include <stdexcept>
#include <string>

#include "platform/files/drives.h"
#include "platform/files/files.h"
#include "platform/files/paths.h"
#include "platform/profile/profilecalls.h"

namespace tessaro::sample {

void pointSettingsAt(const HostPath& game, const HostPath& settings) {
    const auto host = makeHost();
    Paths paths(*host, hostDrives());
    Files files(*host, paths);
    ProfileCalls profile(files);
    const std::string root = paths.toGame(game);
    const std::string file = paths.toGame(settings);
    const auto set = [&](const char* section, const char* key, const std::string& text) {
        if (!profile.writePrivateProfileString(section, key, text, file))
            throw std::runtime_error("cannot write " + settings.string());
    };
    set("UTPaths", "UTPath", root);
    set("UTPaths", "UTCachePath", root + "\\Cache");
    set("UTPaths", "UTMapPath", root + "\\Maps");
    set("UTPaths", "UTSysPath", root + "\\System");
    // Without it, the program would take its first start for the second.
    set("Misc", "TimesUsed", "0");
    set("Common", "VORNX", root + "\\UTMaps");
}

}  // namespace tessaro::sample
