#include "platform/files/host.h"

namespace tessaro {

std::vector<std::string> Host::listFiles(const HostPath& folder) {
    std::vector<std::string> names = list(folder);
    std::erase_if(names, [&](const std::string& name) {
        const auto found = status(folder / name);
        return !found || found->folder;
    });
    return names;
}

}  // namespace tessaro
