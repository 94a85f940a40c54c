#include "platform/files/programfolder.h"

#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

// Asks by beginning a file: modes, access lists and file systems for reading only are then all
// heard. It is never ended, so nothing of it is seen.
bool takesFiles(Host& host, const HostPath& folder) {
    try {
        host.create(folder / ".tessaro-probe.tmp", {});
    } catch (const RunTimeError& error) {
        // Another program of ours is asking at the same moment.
        return error.number() == errors::FileAlreadyExists;
    }
    return true;
}

// Made by whoever comes first, also where two come at once.
void makeWithParents(Host& host, const HostPath& folder) {
    if (host.status(folder)) return;
    if (folder.has_relative_path()) makeWithParents(host, folder.parent_path());
    attempt([&] { host.makeFolder(folder); });
}

}  // namespace

HostPath programFolder(Host& host, const HostPath& executable, const HostPath& userFolder) {
    HostPath beside = executable.parent_path();
    if (takesFiles(host, beside)) return beside;
    attempt([&] { makeWithParents(host, userFolder); });
    return takesFiles(host, userFolder) ? userFolder : beside;
}

}  // namespace tessaro
