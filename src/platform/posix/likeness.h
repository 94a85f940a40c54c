#pragma once

#include <sys/stat.h>

#include <map>
#include <optional>
#include <string>

#include "platform/files/host.h"

namespace tessaro {

/// Whose a file is, who may do what with it, and the attributes that the disk keeps beside it.
///
/// A file that takes another's place by a rename is a new file, and has to be made like the old one
/// first. Owner and group come before permissions, which they could drop. The access list comes
/// before permissions too: where there is one, what looks like the group's permissions is the upper
/// bound of everybody's on the list, and without its list the group would gain what others had. A
/// folder may also have given the new file a list that the old one has not.
class Likeness {
  public:
    /// Nothing if there is no such file.
    static std::optional<Likeness> of(const HostPath& file);

    /// Makes an open file of ours so, as far as disk and system let us: what they refuse leaves it
    /// less open, never more. Tells whether owner, permissions and access list came to be.
    bool giveTo(int file) const;
    /// Makes an open file of ours, a copy of another open one, like that in owner and permissions
    /// only. A copy has the access list that its folder gives it.
    static void giveToCopy(int from, int copy);

  private:
    explicit Likeness(const struct stat& info);
    // Tells whether the group is the same now.
    bool giveOwner(int file) const;
    void givePermissions(int file, bool forGroup) const;
    bool isOf(int file) const;

    uid_t owner_ = 0;
    gid_t group_ = 0;
    mode_t permissions_ = 0;
    std::string accessList_;                         // as the system hands it out; empty for none
    std::map<std::string, std::string> attributes_;  // all else, by name
};

}  // namespace tessaro
