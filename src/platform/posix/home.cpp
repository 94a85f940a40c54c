#include "platform/posix/home.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

#include "platform/files/programfolder.h"

namespace tessaro {

HostPath homeFolder() {
    if (const char* fromEnvironment = std::getenv("HOME"); fromEnvironment && *fromEnvironment)
        return fromEnvironment;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

HostPath userDataFolder() {
    const char* data = std::getenv("XDG_DATA_HOME");
    // A relative one is to be taken for none, says the convention.
    const bool told = data != nullptr && HostPath(data).is_absolute();
    return (told ? HostPath(data) : homeFolder() / ".local" / "share") / "tessaro";
}

}  // namespace tessaro
