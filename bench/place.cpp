#include "bench/place.h"

#include <mntent.h>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace tessaro::bench {
namespace {

bool liesIn(const HostPath& path, const HostPath& root) {
    return std::mismatch(root.begin(), root.end(), path.begin(), path.end()).first == root.end();
}

// That of the mount that hides all others there.
std::string fileSystemOf(const HostPath& folder) {
    const std::unique_ptr<FILE, int (*)(FILE*)> mounts(::setmntent("/proc/self/mounts", "r"),
                                                       ::endmntent);
    std::string name = "unknown";
    HostPath nearest;
    while (const mntent* mount = mounts ? ::getmntent(mounts.get()) : nullptr) {
        const HostPath root = mount->mnt_dir;
        if (!liesIn(folder, root) || !liesIn(root, nearest)) continue;
        name = mount->mnt_type;
        nearest = root;
    }
    return name;
}

Place placeAt(const HostPath& folder) {
    const HostPath real = std::filesystem::canonical(folder);
    return {fileSystemOf(real), real};
}

}  // namespace

Place disk() {
    return placeAt(executablePath().parent_path());
}

Place memory() {
    return placeAt("/dev/shm");
}

std::string on(const Place& place, const std::string& figure) {
    return figure + ", " + place.fileSystem;
}

}  // namespace tessaro::bench
