#include "platform/files/files.h"

#include <algorithm>
#include <set>
#include <utility>

#include "platform/files/hostpath.h"
#include "platform/files/standins.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"
#include "platform/text/wildcard.h"

namespace tessaro {

namespace {

constexpr std::string_view everything = "*.*";

// Where the last part of a path begins.
std::size_t lastPart(std::string_view path) {
    const auto end = std::find_if(path.rbegin(), path.rend(),
                                  [](char letter) { return letter == '\\' || letter == '/'; });
    if (end != path.rend()) return static_cast<std::size_t>(path.rend() - end);
    const bool drive = path.size() > 1 && path[1] == ':';
    return drive ? 2 : 0;
}

// A name that leads nowhere, or to where one may not look, is passed over.
bool isWanted(Host& host, const HostPath& path, int wanted) {
    const auto status = visibleStatus(host, path);
    if (!status) return false;
    const int has = (status->folder ? attributes::Directory : 0) |
                    (status->hidden ? attributes::Hidden : 0) |
                    (status->system ? attributes::System : 0);
    return (has & ~wanted) == 0;
}

void sortNames(std::vector<std::string>& names) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names) {
        std::string key = lowerCase(name);
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::sort(keyed.begin(), keyed.end());
    std::transform(keyed.begin(), keyed.end(), names.begin(),
                   [](auto& each) { return std::move(each.second); });
}

// A file that is to be read. Raises 53 if it is not there, or 76 if its folder is not.
HostPath existing(Host& host, const HostPath& file) {
    if (host.status(file)) return file;
    const bool lost = !isFolder(host, file.parent_path());
    throw RunTimeError(lost ? errors::PathNotFound : errors::FileNotFound, file.string());
}

// A folder as the run-time library lists it: with itself and the one above first.
std::vector<std::string> dotsFor(std::string_view pattern, bool root, int wanted) {
    std::vector<std::string> names;
    if (root || (wanted & attributes::Directory) == 0) return names;
    for (const char* dots : {".", ".."}) {
        if (matchesWildcard(pattern, dots)) names.emplace_back(dots);
    }
    return names;
}

void deleteFile(Host& host, const HostPath& file) {
    const auto status = host.status(file);
    if (status && status->readOnly) throw RunTimeError(errors::PathFileAccess, file.string());
    host.removeFile(file);
}

}  // namespace

std::vector<std::string> Files::list(std::string_view pattern, int attributes) {
    const std::size_t name = lastPart(pattern);
    if (name == pattern.size()) return listFolder(pattern, everything, attributes);
    if (hasWildcard(pattern.substr(name)))
        return listFolder(pattern.substr(0, name), pattern.substr(name), attributes);
    const auto path = paths_.find(pattern);
    if (!path || !isWanted(host_, *path, attributes)) return {};
    // A root has no name of its own to list.
    if (paths_.absolute(pattern).ends_with('\\'))
        return listFolder(pattern, everything, attributes);
    // Some names stand for a file of another one.
    std::string found = gameName(path->filename().string());
    const std::string_view asked = pattern.substr(name);
    return {sameName(found, asked) ? std::move(found) : std::string(asked)};
}

// The host folders behind a folder that are there.
std::vector<HostPath> Files::placesOf(std::string_view folder) {
    auto places = paths_.folders(folder);
    std::erase_if(places, [this](const HostPath& place) { return !isFolder(host_, place); });
    return places;
}

// The names in host folders that are wanted, in the order of the host. Those of an upper folder
// hide what differs in case only in the ones below.
template <class Wanted>
std::vector<std::string> Files::namesIn(const std::vector<HostPath>& places, const Wanted& wanted) {
    std::vector<std::string> names;
    std::set<std::string> above;
    for (const HostPath& place : places) {
        std::vector<std::string> here;
        for (const ListedName& each : host_.listNames(place)) {
            if (isUnderWay(each.name)) continue;
            std::string name = gameName(each.name);
            if (places.size() > 1) here.push_back(lowerCase(name));
            if (!above.empty() && above.contains(here.back())) continue;
            if (wanted(place, each, name)) names.push_back(std::move(name));
        }
        above.insert(here.begin(), here.end());
    }
    return names;
}

std::vector<std::string> Files::listFolder(std::string_view folder, std::string_view pattern,
                                           int attributes) {
    const auto places = placesOf(folder);
    if (places.empty()) return {};
    auto names = namesIn(
        places, [&](const HostPath& place, const ListedName& each, const std::string& name) {
            // Plain files are always wanted; to ask for each would take most of a listing's time.
            return matchesWildcard(pattern, name) &&
                   (each.plainFile || isWanted(host_, inFolder(place, each.name), attributes));
        });
    sortNames(names);
    const bool root = paths_.absolute(folder).ends_with('\\');
    const auto dots = dotsFor(pattern, root, attributes);
    names.insert(names.begin(), dots.begin(), dots.end());
    return names;
}

std::string Files::firstMatch(std::string_view pattern, int attributes) {
    auto names = list(pattern, attributes);
    return names.empty() ? std::string() : std::move(names.front());
}

bool Files::canList(std::string_view folder) {
    const auto places = placesOf(folder);
    return !places.empty() && attempt([&] {
        for (const HostPath& place : places) host_.list(place);
    });
}

std::vector<std::string> Files::filesIn(std::string_view folder) {
    constexpr int anyFile = attributes::Hidden | attributes::System;
    return namesIn(placesOf(folder), [this](const HostPath& place, const ListedName& each,
                                            const std::string&) {
        return each.plainFile || isWanted(host_, inFolder(place, each.name), anyFile);
    });
}

std::vector<std::string> Files::foldersIn(std::string_view folder) {
    const auto isShown = [this](const HostPath& place, const ListedName& each, const std::string&) {
        return !each.plainFile &&
               isWanted(host_, inFolder(place, each.name), attributes::Directory) &&
               isFolder(host_, inFolder(place, each.name));
    };
    auto names = namesIn(placesOf(folder), isShown);
    sortNames(names);
    return names;
}

std::uintmax_t Files::fileLength(std::string_view file) {
    const auto path = paths_.find(file);
    const auto status = path ? host_.status(*path) : std::nullopt;
    if (!status) throw RunTimeError(errors::FileNotFound, std::string(file));
    return status->folder ? 0 : status->size;
}

void Files::copyFile(std::string_view from, std::string_view to) {
    const HostPath source = paths_.toHost(from);
    const HostPath target = paths_.toWrite(to);
    replaceByCopy(host_, source, target);
    paths_.add(target);
}

std::vector<std::string> Files::namesToDelete(std::string_view pattern) {
    // What lists a folder's content must not delete it.
    const bool named =
        lastPart(pattern) < pattern.size() && !paths_.absolute(pattern).ends_with('\\');
    return named ? list(pattern, attributes::Normal) : std::vector<std::string>();
}

// Where the names of a pattern's folder lie that are to be deleted; nothing for one that has to
// stay. Found before the first is gone, since each that goes drops what is known of the folder.
std::vector<std::optional<HostPath>> Files::toDelete(std::string_view pattern,
                                                     const std::vector<std::string>& names) {
    const std::string_view folder = pattern.substr(0, lastPart(pattern));
    const HostPath place = paths_.toHost(folder);
    LayeredFolder* layers = paths_.layers(folder);
    std::vector<std::optional<HostPath>> found;
    found.reserve(names.size());
    for (const std::string& name : names)
        found.push_back(layers ? layers->toDelete(name) : inFolder(place, hostName(name)));
    for (const HostPath& each : layers ? layers->folders() : std::vector{place})
        paths_.forget(each);
    return found;
}

void Files::deleteFiles(std::string_view pattern) {
    const auto names = namesToDelete(pattern);
    if (names.empty()) throw RunTimeError(errors::FileNotFound, std::string(pattern));
    for (const auto& file : toDelete(pattern, names)) {
        if (!file) throw RunTimeError(errors::PathFileAccess, std::string(pattern));
        deleteFile(host_, *file);
    }
}

void Files::deleteWhatGoes(std::string_view pattern) {
    for (const auto& file : toDelete(pattern, namesToDelete(pattern)))
        if (file) attempt([&] { deleteFile(host_, *file); });
}

void Files::makeFolder(std::string_view folder) {
    const HostPath path = paths_.toWrite(folder);
    if (host_.status(path)) throw RunTimeError(errors::PathFileAccess, path.string());
    if (!isFolder(host_, path.parent_path()))
        throw RunTimeError(errors::PathNotFound, path.string());
    host_.makeFolder(path);
    paths_.forget(path.parent_path());
}

std::string Files::read(std::string_view file) {
    return host_.read(existing(host_, paths_.toHost(file)));
}

bool Files::remembers(std::string_view file) {
    // Mostly it is asked for by its full path, which need not be taken apart again.
    const bool known = file == memory_.path() || paths_.absolute(file) == memory_.path();
    return known && memory_.certain();
}

std::shared_ptr<const std::string> Files::content(std::string_view file) {
    if (remembers(file)) return memory_.bytes();
    const std::string full = paths_.absolute(file);
    const HostPath path = paths_.toHost(full);
    memory_.read(full, existing(host_, path));
    // Only now that it is watched, the way to the file cannot change unseen.
    if (paths_.find(full) != path || paths_.canBeOvertaken(full)) memory_.doubt();
    return memory_.bytes();
}

void Files::replace(std::string_view file, std::string_view bytes) {
    const HostPath path = paths_.toWrite(file);
    replaceFile(host_, path, bytes);
    paths_.forget(path.parent_path());
}

// Where a file is to be changed that may have to be made first.
HostPath Files::toChange(std::string_view file) {
    HostPath path = paths_.toWrite(file);
    if (const auto madeOf = paths_.templateOf(file)) {
        replaceFile(host_, path, host_.read(*madeOf));
        paths_.forget(path.parent_path());
    }
    return path;
}

void Files::change(std::string_view file, const FileChange& change) {
    const HostPath path = toChange(file);
    changeFile(host_, path, change);
    paths_.forget(path.parent_path());
}

void Files::touch(std::string_view file) {
    if (remembers(file) && memory_.writable()) return;
    const HostPath path = toChange(file);
    requireReplaceable(host_, path);
    host_.touch(path);
    paths_.forget(path.parent_path());
}

}  // namespace tessaro
