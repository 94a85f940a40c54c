#include "platform/files/paths.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/files/hostpath.h"
#include "platform/files/standins.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/ascii.h"

namespace tessaro {

namespace {

constexpr std::size_t letterSize = 2;  // of "C:"

bool isSeparator(char character) {
    return character == '\\' || character == '/';
}

bool namesDrive(std::string_view path) {
    return path.size() >= letterSize && path[1] == ':' && isAsciiLetter(path[0]);
}

std::string rootText(char drive) {
    return {drive, ':', '\\'};
}

bool isRoot(std::string_view full) {
    return full.size() == letterSize + 1;
}

// "C:\a\b" is "b" in "C:\a", and "C:\a" is "a" in "C:\".
struct Split {
    explicit Split(std::string_view full) {
        const std::size_t last = full.rfind('\\');
        folder = full.substr(0, last == letterSize ? last + 1 : last);
        name = full.substr(last + 1);
    }
    std::string_view folder;
    std::string_view name;
};

// `full` is a path without a backslash at its end, a root being "C:".
void append(std::string& full, std::string_view part) {
    if (part.empty() || part == ".") return;
    if (part != "..") {
        full += '\\';
        appendWritten(full, part);
    } else if (full.size() > letterSize) {
        full.resize(full.rfind('\\'));
    }
}

void appendAll(std::string& full, std::string_view parts) {
    while (!parts.empty()) {
        std::size_t end = 0;
        while (end < parts.size() && !isSeparator(parts[end])) ++end;
        append(full, parts.substr(0, end));
        parts.remove_prefix(std::min(end + 1, parts.size()));
    }
}

bool liesIn(const HostPath& path, const HostPath& root) {
    return std::mismatch(root.begin(), root.end(), path.begin(), path.end()).first == root.end();
}

bool isLonger(const HostPath& root, const HostPath& other) {
    return root.native().size() > other.native().size();
}

}  // namespace

Paths::Paths(Host& host, DriveMap drives) : host_(host), roots_(std::move(drives)), index_(host) {
    for (const auto& [drive, root] : roots_) folders_[drive] = rootText(drive);
    // A folder that was deleted under us, or lies on no drive, leaves us at a root.
    const bool placed = attempt([&] {
        const std::string start = toGame(host_.currentFolder());
        drive_ = start.front();
        folders_[drive_] = start;
    });
    if (!placed && !roots_.empty()) drive_ = roots_.begin()->first;
}

HostPath Paths::toHost(std::string_view path) {
    return toHostFull(absolute(path));
}

HostPath Paths::toHostFull(std::string_view full) {
    if (auto there = findFull(full)) return *std::move(there);
    const auto [folder, name] = Split(full);
    // The search that has just failed knows the folder, if there is one.
    const auto known = found_.find(folder);
    if (known == found_.end()) return inFolder(toHostFull(folder), hostName(name));
    const auto& [path, layers] = known->second;
    return layers ? layers->placeForNew(name) : inFolder(path, hostName(name));
}

std::optional<HostPath> Paths::findFull(std::string_view full) {
    if (isRoot(full)) return rootOf(full.front());
    const auto [folder, name] = Split(full);
    if (const auto known = found_.find(folder); known != found_.end()) {
        auto finding = findIn(known->second, name);
        if (finding.folder) return std::move(finding.path);
        found_.erase(known);  // deleted, or spelled otherwise by now
    }
    auto above = findFull(folder);
    if (!above) return std::nullopt;
    Folder place{*std::move(above), layersOf(folder)};
    auto finding = findIn(place, name);
    if (finding.folder) found_.emplace(folder, std::move(place));
    return std::move(finding.path);
}

LayeredFolder::Finding Paths::findIn(const Folder& folder, std::string_view name) {
    if (folder.layers) return folder.layers->find(name);
    const auto finding = index_.find(folder.path, name);
    if (const LayeredFolder* layers = finding.folder ? layers_.in(folder.path, name) : nullptr)
        return {true, layers->place()};
    if (!finding.name) return {finding.folder, std::nullopt};
    return {true, inFolder(folder.path, hostName(*finding.name))};
}

// Of a folder that is known to be there, as the folders above it then are.
LayeredFolder* Paths::layersOf(std::string_view full) {
    if (isRoot(full)) return nullptr;
    const auto [above, name] = Split(full);
    const auto game = found_.find(above);
    return game == found_.end() ? nullptr : layers_.in(game->second.path, name);
}

LayeredFolder* Paths::layersRound(std::string_view full) {
    if (isRoot(full)) return nullptr;
    const auto folder = found_.find(Split(full).folder);
    return folder == found_.end() ? nullptr : folder->second.layers;
}

HostPath Paths::toWrite(std::string_view path) {
    const std::string full = absolute(path);
    HostPath place = toHostFull(full);
    const LayeredFolder* layers = layersRound(full);
    return layers ? layers->toWrite(Split(full).name) : place;
}

bool Paths::canBeOvertaken(std::string_view path) {
    const std::string full = absolute(path);
    const LayeredFolder* layers = layersRound(full);
    return layers != nullptr && !layers->find(Split(full).name).first;
}

std::optional<HostPath> Paths::templateOf(std::string_view path) {
    const std::string full = absolute(path);
    const LayeredFolder* layers = layersRound(full);
    return layers ? layers->templateOf(Split(full).name) : std::nullopt;
}

std::vector<HostPath> Paths::folders(std::string_view folder) {
    const std::string full = absolute(folder);
    auto place = findFull(full);
    if (!place) return {};
    const LayeredFolder* layers = layersOf(full);
    return layers ? layers->folders() : std::vector{*std::move(place)};
}

std::string Paths::spelled(std::string_view full) {
    if (isRoot(full)) return std::string(full);
    const auto [folder, name] = Split(full);
    const auto place = findFull(full);
    const LayeredFolder* layers = layersOf(full);
    std::string path = spelled(folder);
    if (!path.ends_with('\\')) path += '\\';
    if (!place) return path.append(name);
    return path + gameName(layers ? layers->name() : place->filename().string());
}

std::string Paths::toGame(const HostPath& path) const {
    const HostPath whole = path.is_absolute() ? path : host_.currentFolder() / path;
    HostPath normal = whole.lexically_normal();
    char drive = longestRootOf(normal);
    // Somebody's way to the drive may lead through a link, while roots have theirs resolved.
    if (drive == 0 || roots_.at(drive) == roots_.at(drive).root_path()) {
        std::error_code error;
        HostPath canonical = std::filesystem::weakly_canonical(whole, error);
        const char other = error ? '\0' : longestRootOf(canonical);
        // Where each drive is a root, no other one is nearer: a drive that stands for a folder of
        // another one, or of another machine, stays the one that was named.
        if (other != 0 && (drive == 0 || isLonger(roots_.at(other), roots_.at(drive)))) {
            drive = other;
            normal = std::move(canonical);
        }
    }
    const HostPath& root = rootOf(drive);
    std::string full{drive, ':'};
    auto part = normal.begin();
    std::advance(part, std::distance(root.begin(), root.end()));
    for (; part != normal.end(); ++part) append(full, gameName(part->string()));
    return full.size() == letterSize ? rootText(drive) : full;
}

std::string Paths::absolute(std::string_view path) const {
    char drive = drive_;
    if (namesDrive(path)) {
        drive = upperAscii(path.front());
        path.remove_prefix(letterSize);
    }
    std::string full{drive, ':'};
    const auto current = folders_.find(drive);
    if (current != folders_.end() && (path.empty() || !isSeparator(path.front()))) {
        full = current->second;
        if (isRoot(full)) full.pop_back();
    }
    full.reserve(full.size() + path.size() + 1);
    appendAll(full, path);
    return full.size() == letterSize ? rootText(drive) : full;
}

bool Paths::isInside(std::string_view path, std::string_view folder) const {
    std::string above = absolute(folder);
    if (!above.ends_with('\\')) above += '\\';
    return absolute(path).starts_with(above);
}

std::string Paths::currentFolder() const {
    return absolute({});
}

void Paths::changeFolder(std::string_view path) {
    const std::string full = absolute(path);
    const HostPath folder = toHostFull(full);
    const auto status = host_.status(folder);
    if (!status || !status->folder) throw RunTimeError(errors::PathNotFound, full);
    if (full.front() == drive_) host_.changeFolder(folder);
    folders_[full.front()] = full;
}

void Paths::changeDrive(std::string_view drive) {
    if (drive.empty() || !isAsciiLetter(drive.front()))
        throw RunTimeError(errors::InvalidProcedureCall);
    const char letter = upperAscii(drive.front());
    const HostPath& root = rootOf(letter);
    // A drive whose current folder is gone is entered at its root.
    if (!attempt([&] { host_.changeFolder(toHostFull(folders_[letter])); })) {
        host_.changeFolder(root);
        folders_[letter] = rootText(letter);
    }
    drive_ = letter;
}

std::vector<char> Paths::drives() const {
    std::vector<char> letters;
    for (const auto& [drive, root] : roots_) letters.push_back(drive);
    return letters;
}

const HostPath& Paths::rootOf(char drive) const {
    const auto known = roots_.find(drive);
    if (known == roots_.end()) throw RunTimeError(errors::DeviceUnavailable, {drive, ':'});
    return known->second;
}

char Paths::longestRootOf(const HostPath& path) const {
    char best = 0;
    for (const auto& [drive, root] : roots_) {
        const bool longer = best == 0 || isLonger(root, roots_.at(best));
        if (longer && liesIn(path, root)) best = drive;
    }
    return best;
}

}  // namespace tessaro
