#include "platform/files/layers.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/files/hostpath.h"
#include "platform/files/standins.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

namespace tessaro {

namespace {

using Kind = LayeredFolder::Kind;

struct LayeredName {
    std::string_view name;
    Kind kind;
};
constexpr std::array layeredNames{
    LayeredName{"System", Kind::System},  LayeredName{"Cache", Kind::Cache},
    LayeredName{"Maps", Kind::Content},   LayeredName{"Textures", Kind::Content},
    LayeredName{"Sounds", Kind::Content}, LayeredName{"Music", Kind::Content},
};

constexpr std::string_view compressedEnd = ".uz";

std::vector<HostPath> foldersOf(Kind kind, const NativeGame& game, std::string_view name,
                                const HostPath& own) {
    std::vector<HostPath> folders;
    if (!game.home.empty()) folders.push_back(game.home / name);
    if (kind == Kind::System && game.programs != own) folders.push_back(game.programs);
    folders.push_back(own);
    return folders;
}

bool isVisibleFolder(Host& host, const HostPath& path) {
    const auto status = visibleStatus(host, path);
    return status && status->folder;
}

}  // namespace

struct LayeredFolder::Profile {
    std::string_view name;
    std::string_view madeOf;
};

const LayeredFolder::Profile LayeredFolder::profiles[] = {
    {"UnrealTournament.ini", "Default.ini"},
    {"User.ini", "DefUser.ini"},
};

LayeredFolder::LayeredFolder(Host& host, FolderIndex& index, Kind kind, const NativeGame& game,
                             std::string_view name, HostPath own)
    : host_(host),
      index_(index),
      kind_(kind),
      game_(game),
      own_(std::move(own)),
      folders_(foldersOf(kind, game, name, own_)) {}

LayeredFolder::Finding LayeredFolder::find(std::string_view name) const {
    if (const HostPath* program = programNamed(name))
        return {.folder = true, .path = *program, .kept = true};
    if (const Profile* profile = profileNamed(name)) return findProfile(*profile);
    if (Finding result = findResult(name); result.path) return result;
    return search(name, folders_.size());
}

LayeredFolder::Finding LayeredFolder::search(std::string_view name, std::size_t depth,
                                             bool exact) const {
    Finding found;
    for (std::size_t layer = 0; layer < depth && !found.path; ++layer) {
        const auto finding = index_.find(folders_[layer], name);
        found.folder = found.folder || finding.folder;
        if (!finding.name || (exact && *finding.name != name)) continue;
        found.path = inFolder(folders_[layer], hostName(*finding.name));
        found.layer = layer;
        found.first = layer == 0;
        found.kept = kind_ == Kind::Cache && layer > 0;
    }
    return found;
}

LayeredFolder::Finding LayeredFolder::findProfile(const Profile& profile) const {
    const auto deleted = deleted_.find(profile.name);
    const std::size_t depth = deleted == deleted_.end() ? folders_.size() : deleted->second + 1;
    Finding found = search(profile.name, depth, true);
    if (!found.path) {
        found = search(profile.name, depth);
        found.first = false;
    }
    if (found.path) {
        found.kept = folders_[found.layer] == own_ && own_ != game_.programs;
        deleted_.erase(profile.name);
    } else if (deleted == deleted_.end()) {
        found = search(profile.madeOf, folders_.size());
        found.first = false;
        found.kept = true;
    }
    return found;
}

// What ucc may have made of a file, beside it.
LayeredFolder::Finding LayeredFolder::findResult(std::string_view name) const {
    if (name.size() < compressedEnd.size()) return {};
    const std::size_t end = name.size() - compressedEnd.size();
    if (!sameName(name.substr(end), compressedEnd)) return {};
    const Finding source = find(name.substr(0, end));
    if (!source.path) return {};
    const auto finding = index_.find(folders_[source.layer], name);
    if (!finding.name) return {};
    Finding result = source;
    result.path = inFolder(folders_[source.layer], hostName(*finding.name));
    return result;
}

const LayeredFolder::Profile* LayeredFolder::profileNamed(std::string_view name) const {
    if (kind_ != Kind::System) return nullptr;
    const auto* found = std::ranges::find_if(
        profiles, [&](const Profile& profile) { return sameName(profile.name, name); });
    return found == std::end(profiles) ? nullptr : found;
}

// Null if it is no program's name, or the game has none of it.
const HostPath* LayeredFolder::programNamed(std::string_view name) const {
    if (kind_ != Kind::System) return nullptr;
    if (sameName(name, "ucc.exe") && !game_.ucc.empty()) return &game_.ucc;
    return sameName(name, "unrealtournament.exe") && !game_.game.empty() ? &game_.game : nullptr;
}

std::optional<HostPath> LayeredFolder::place() const {
    if (kind_ == Kind::System) {
        const Finding ini = findProfile(profiles[0]);
        if (ini.path) return folders_[ini.layer];
    }
    if (!game_.home.empty() && isVisibleFolder(host_, folders_.front())) return folders_.front();
    return isVisibleFolder(host_, own_) ? std::optional(own_) : std::nullopt;
}

std::size_t LayeredFolder::layerForNew(std::string_view name) const {
    if (kind_ == Kind::Content) return host_.takesFiles(own_) ? folders_.size() - 1 : 0;
    const Profile* profile = profileNamed(name);
    const auto deleted = profile ? deleted_.find(profile->name) : deleted_.end();
    return deleted == deleted_.end() ? 0 : deleted->second;
}

HostPath LayeredFolder::placeForNew(std::string_view name) const {
    const Profile* profile = profileNamed(name);
    return inFolder(folders_[layerForNew(name)], profile ? profile->name : hostName(name));
}

HostPath LayeredFolder::toWrite(std::string_view name) const {
    if (Finding found = find(name); found.path && !found.kept) return *std::move(found.path);
    HostPath place = placeForNew(name);
    if (place.parent_path() == folders_.front()) makeUpper();
    return place;
}

std::optional<HostPath> LayeredFolder::toDelete(std::string_view name) {
    Finding found = find(name);
    if (!found.path || found.kept) return std::nullopt;
    if (const Profile* profile = profileNamed(name)) deleted_[profile->name] = found.layer;
    return std::move(found.path);
}

std::optional<HostPath> LayeredFolder::templateOf(std::string_view name) const {
    const Profile* profile = profileNamed(name);
    if (!profile) return std::nullopt;
    const Finding found = findProfile(*profile);
    return found.path && !found.kept ? std::nullopt : search(profile->madeOf, folders_.size()).path;
}

void LayeredFolder::makeUpper() const {
    if (game_.home.empty()) return;
    for (const HostPath& folder : {game_.home, folders_.front()})
        if (!isVisibleFolder(host_, folder)) attempt([&] { host_.makePrivateFolder(folder); });
}

LayeredFolder* Layers::in(const HostPath& game, std::string_view name) {
    // By its length first: this is asked of every name.
    const auto* layered = std::ranges::find_if(layeredNames, [&](const LayeredName& each) {
        return each.name.size() == name.size() && sameName(each.name, name);
    });
    if (layered == layeredNames.end()) return nullptr;
    auto& [native, folders] = gameIn(game);
    if (!native) return nullptr;
    if (const auto known = folders.find(layered->name); known != folders.end())
        return &known->second;
    const auto spelled = index_.find(game, name).name;
    const HostPath own = inFolder(game, spelled ? hostName(*spelled) : std::string(layered->name));
    LayeredFolder folder(host_, index_, layered->kind, *native, layered->name, own);
    if (layered->kind == Kind::Cache && !folder.place()) folder.makeUpper();
    return &folders.emplace(layered->name, std::move(folder)).first->second;
}

Layers::Game& Layers::gameIn(const HostPath& folder) {
    const auto met = games_.try_emplace(folder);
    Game& game = met.first->second;
    if (met.second) attempt([&] { game.native = nativeGameIn(host_, folder); });
    return game;
}

}  // namespace tessaro
