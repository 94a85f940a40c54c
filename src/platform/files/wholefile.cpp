#include "platform/files/wholefile.h"

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

constexpr int mostTries = 100;
// How long to wait for another program of ours. Past that it hangs, and the look before the rename
// has to do.
constexpr std::chrono::seconds patience{2};

// A name that no listing of the program shows. Chance keeps it apart from what a killed process
// left; in the cache folder the game clears away *.tmp by itself.
std::string temporaryName() {
    std::random_device chance;
    char name[32];
    std::snprintf(name, sizeof name, ".tessaro-%08x%08x.tmp", chance(), chance());
    return name;
}

void requireFolder(Host& host, const HostPath& folder) {
    const auto status = host.status(folder);
    if (!status || !status->folder) throw RunTimeError(errors::PathNotFound, folder.string());
}

// The file behind a link, once it is clear that it may be replaced.
HostPath replaceable(Host& host, const HostPath& file) {
    HostPath target = host.target(file);
    if (!host.status(target)) {
        requireFolder(host, target.parent_path());
    } else if (!host.writable(target)) {
        throw RunTimeError(errors::PathFileAccess, target.string());
    }
    return target;
}

// Tells whether it replaced the file: it does not if `current`, asked last of all, says that the
// file is no longer what the new bytes were made from.
template <class Fill, class Current>
bool replaceBy(Host& host, const HostPath& target, const Fill& fill, const Current& current) {
    for (int tries = 1;; ++tries) {
        const HostPath beside = target.parent_path() / temporaryName();
        try {
            fill(beside);
            const bool wanted = current();
            wanted ? host.rename(beside, target) : host.removeFile(beside);
            return wanted;
        } catch (const RunTimeError& error) {
            const bool taken = error.number() == errors::FileAlreadyExists;
            if (!taken) attempt([&] { host.removeFile(beside); });
            if (!taken || tries == mostTries) throw;
        }
    }
}

template <class Current>
bool replaceWith(Host& host, const HostPath& target, std::string_view bytes,
                 const Current& current) {
    const auto fill = [&](const HostPath& beside) {
        const auto writer = host.create(beside, target);
        writer->write(bytes);
        writer->close();
    };
    if (!replaceBy(host, target, fill, current)) return false;
    // The new name is in place. If it is not yet on the disk, a crash gives the old file.
    attempt([&] { host.flushFolder(target.parent_path()); });
    return true;
}

bool always() {
    return true;
}

std::optional<std::string> contentsOf(Host& host, const HostPath& file) {
    if (!host.status(file)) return std::nullopt;
    return host.read(file);
}

}  // namespace

void replaceFile(Host& host, const HostPath& file, std::string_view bytes) {
    const HostPath target = replaceable(host, file);
    const auto lock = host.lock(target.parent_path(), patience);
    replaceWith(host, target, bytes, always);
}

void changeFile(Host& host, const HostPath& file, const FileChange& change) {
    const HostPath target = host.target(file);
    requireFolder(host, target.parent_path());
    const auto lock = host.lock(target.parent_path(), patience);
    for (int tries = 1; tries <= mostTries; ++tries) {
        const auto old = contentsOf(host, target);
        const auto changed = change(old ? std::string_view(*old) : std::string_view());
        if (!changed) return;
        requireReplaceable(host, target);
        if (replaceWith(host, target, *changed, [&] { return contentsOf(host, target) == old; })) {
            return;
        }
    }
    throw RunTimeError(errors::PermissionDenied, target.string());
}

void requireReplaceable(Host& host, const HostPath& file) {
    replaceable(host, file);
}

void replaceByCopy(Host& host, const HostPath& from, const HostPath& to) {
    const HostPath target = replaceable(host, to);
    replaceBy(
        host, target, [&](const HostPath& beside) { host.copy(from, beside, target); }, always);
}

}  // namespace tessaro
