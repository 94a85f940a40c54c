#include "platform/files/wholefile.h"

#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

constexpr int mostTries = 100;

// A name that no listing of the program shows. Chance keeps it apart from what a killed process
// left; in the cache folder the game clears away *.tmp by itself.
std::string temporaryName() {
    std::random_device chance;
    char name[32];
    std::snprintf(name, sizeof name, ".tessaro-%08x%08x.tmp", chance(), chance());
    return name;
}

// The file behind a link, once it is clear that it may be replaced.
HostPath replaceable(Host& host, const HostPath& file) {
    HostPath target = host.target(file);
    if (host.status(target)) {
        if (!host.writable(target)) throw RunTimeError(errors::PathFileAccess, target.string());
        return target;
    }
    const auto folder = host.status(target.parent_path());
    if (!folder || !folder->folder) throw RunTimeError(errors::PathNotFound, target.string());
    return target;
}

template <class Fill>
void replaceBy(Host& host, const HostPath& target, const Fill& fill) {
    for (int tries = 1;; ++tries) {
        const HostPath beside = target.parent_path() / temporaryName();
        try {
            fill(beside);
            host.rename(beside, target);
            return;
        } catch (const RunTimeError& error) {
            const bool taken = error.number() == errors::FileAlreadyExists;
            if (!taken) attempt([&] { host.removeFile(beside); });
            if (!taken || tries == mostTries) throw;
        }
    }
}

}  // namespace

void replaceFile(Host& host, const HostPath& file, std::string_view bytes) {
    const HostPath target = replaceable(host, file);
    replaceBy(host, target, [&](const HostPath& beside) {
        const auto writer = host.create(beside, target);
        writer->write(bytes);
        writer->close();
    });
    // The new name is in place. If it is not yet on the disk, a crash gives the old file.
    attempt([&] { host.flushFolder(target.parent_path()); });
}

void requireReplaceable(Host& host, const HostPath& file) {
    replaceable(host, file);
}

void replaceByCopy(Host& host, const HostPath& from, const HostPath& to) {
    const HostPath target = replaceable(host, to);
    replaceBy(host, target, [&](const HostPath& beside) { host.copy(from, beside, target); });
}

}  // namespace tessaro
