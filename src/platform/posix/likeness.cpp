#include "platform/posix/likeness.h"

#include <unistd.h>

#include <cerrno>
#include <utility>

#include "platform/posix/descriptor.h"

#ifdef __linux__
#include <sys/xattr.h>
#endif

namespace tessaro {

namespace {

constexpr mode_t permissionBits = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr unsigned groupShift = 3;

// For a call whose refusal is no reason to fail.
void passOver(int /*result*/) {}

#ifdef __linux__

constexpr const char* accessListName = "system.posix_acl_access";

// What one of the calls for attributes hands out: its length is asked for first. Nothing if the
// disk has no such thing.
template <class Call>
std::optional<std::string> answerOf(const Call& call) {
    ssize_t size = call(nullptr, 0);
    while (size >= 0) {
        std::string answer(static_cast<std::size_t>(size), '\0');
        size = call(answer.data(), answer.size());
        if (size >= 0) {
            answer.resize(static_cast<std::size_t>(size));
            return answer;
        }
        if (errno == ERANGE) size = call(nullptr, 0);  // it has grown meanwhile
    }
    return std::nullopt;
}

std::optional<std::string> attributeOf(const HostPath& file, const char* name) {
    return answerOf([&](char* buffer, std::size_t size) {
        return ::getxattr(file.c_str(), name, buffer, size);
    });
}

std::map<std::string, std::string> attributesOf(const HostPath& file) {
    const auto names = answerOf(
        [&](char* buffer, std::size_t size) { return ::listxattr(file.c_str(), buffer, size); });
    std::map<std::string, std::string> attributes;
    for (const char* name = names ? names->c_str() : ""; *name;
         name += std::string(name).size() + 1) {
        if (name == std::string(accessListName)) continue;
        if (auto value = attributeOf(file, name)) attributes.emplace(name, *std::move(value));
    }
    return attributes;
}

std::string accessListOf(const HostPath& file) {
    return attributeOf(file, accessListName).value_or("");
}

std::string accessListOf(int file) {
    return answerOf([&](char* buffer, std::size_t size) {
               return ::fgetxattr(file, accessListName, buffer, size);
           })
        .value_or("");
}

void giveAttribute(int file, const std::string& name, const std::string& value) {
    passOver(::fsetxattr(file, name.c_str(), value.data(), value.size(), 0));
}

void giveAccessList(int file, const std::string& list) {
    if (list.empty()) {
        passOver(::fremovexattr(file, accessListName));
    } else {
        giveAttribute(file, accessListName, list);
    }
}

#else

std::map<std::string, std::string> attributesOf(const HostPath& /*file*/) {
    return {};
}
template <class File>
std::string accessListOf(const File& /*file*/) {
    return {};
}
void giveAttribute(int /*file*/, const std::string& /*name*/, const std::string& /*value*/) {}
void giveAccessList(int /*file*/, const std::string& /*list*/) {}

#endif

}  // namespace

Likeness::Likeness(const struct stat& info)
    : owner_(info.st_uid), group_(info.st_gid), permissions_(info.st_mode & permissionBits) {}

std::optional<Likeness> Likeness::of(const HostPath& file) {
    struct stat info = {};
    if (::stat(systemName(file), &info) == -1) return std::nullopt;
    Likeness likeness(info);
    likeness.accessList_ = accessListOf(file);
    likeness.attributes_ = attributesOf(file);
    return likeness;
}

bool Likeness::giveTo(int file) const {
    const bool ourGroup = giveOwner(file);
    giveAccessList(file, accessList_);
    if (accessListOf(file) == accessList_) givePermissions(file, ourGroup);
    for (const auto& [name, value] : attributes_) giveAttribute(file, name, value);
    return isOf(file);
}

void Likeness::giveToCopy(int from, int copy) {
    struct stat info = {};
    if (::fstat(from, &info) == -1) return;
    const Likeness likeness(info);
    const bool ourGroup = likeness.giveOwner(copy);
    likeness.givePermissions(copy, ourGroup && accessListOf(from).empty());
}

// Only a privileged user may give files away; most may choose among their own groups. Mostly it is
// ours already, and then the disk is spared the change.
bool Likeness::giveOwner(int file) const {
    struct stat info = {};
    if (::fstat(file, &info) == 0 && info.st_uid == owner_ && info.st_gid == group_) return true;
    if (::fchown(file, owner_, group_) == -1)
        passOver(::fchown(file, static_cast<uid_t>(-1), group_));
    return ::fstat(file, &info) == 0 && info.st_gid == group_;
}

// What the old group had is not for another one, nor does it tell what the group had where the list
// is missing. It gets no more than everybody then.
void Likeness::givePermissions(int file, bool forGroup) const {
    const mode_t others = (permissions_ & S_IRWXO) << groupShift;
    const mode_t group = forGroup ? S_IRWXG : others;
    passOver(::fchmod(file, permissions_ & (S_IRWXU | S_IRWXO | group)));
}

bool Likeness::isOf(int file) const {
    struct stat info = {};
    return ::fstat(file, &info) == 0 && info.st_uid == owner_ && info.st_gid == group_ &&
           (info.st_mode & permissionBits) == permissions_ && accessListOf(file) == accessList_;
}

}  // namespace tessaro
