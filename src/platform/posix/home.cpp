#include "platform/posix/home.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>

namespace tessaro {

HostPath homeFolder() {
    if (const char* fromEnvironment = std::getenv("HOME"); fromEnvironment && *fromEnvironment)
        return fromEnvironment;
    const passwd* user = ::getpwuid(::getuid());
    return user && user->pw_dir ? user->pw_dir : "/";
}

}  // namespace tessaro
