#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files/drives.h"
#include "platform/files/folderindex.h"
#include "platform/files/host.h"
#include "platform/files/layers.h"

namespace tessaro {

/// Turns paths in the game's form (`C:\UnrealTournament\System\user.ini`) into host paths and
/// back, and keeps the current drive and the current folder of each drive, as DOS does.
///
/// Names match without regard to case: the exact name first, then a fold. `/` is taken for `\`. A
/// letter that can mean nothing where it stands, such as a colon behind the drive's, means the name
/// on the host that holds it (see standins.h). Behind some folders of a game that was built for
/// this system there are several host folders (see layers.h).
class Paths {
  public:
    /// Starts in the host's current folder.
    Paths(Host& host, DriveMap drives);
    Paths(const Paths&) = delete;
    Paths& operator=(const Paths&) = delete;

    /// The host path of a game path. What exists of it is given as it is spelled on the disk; a
    /// tail that does not exist is kept as it is. Raises 68 for a drive that is not there.
    HostPath toHost(std::string_view path);
    /// The same if all of it is there by its names (a link may still lead nowhere), else nothing.
    /// Asking for many missing files of one folder costs one look at that folder each.
    std::optional<HostPath> find(std::string_view path) { return findFull(absolute(path)); }
    /// The host path to write a file or make a folder at, with what may have to be made above it.
    HostPath toWrite(std::string_view path);
    /// Whether a file in another folder could come to be found in the place of one that was just
    /// found.
    bool canBeOvertaken(std::string_view path);
    /// What a file that was just looked for, and is not there, is to be made of. Nothing for all
    /// but a few of the game's.
    std::optional<HostPath> templateOf(std::string_view path);
    /// The host folders behind a folder, the upper first; some of several may not be there. None if
    /// there is no such folder.
    std::vector<HostPath> folders(std::string_view folder);
    /// The stack of them, of a folder that was just looked for; null where there is but one.
    LayeredFolder* layers(std::string_view folder) { return layersOf(absolute(folder)); }
    /// A full path with its names as they are spelled on the disk, as far as they are there.
    std::string spelled(std::string_view full);
    /// The game path of a host path; the longest drive root wins. Links are followed only where
    /// that brings a path outside the other drives onto one. For a backslash in a name see
    /// standins.h. Raises 68 if no drive holds it.
    std::string toGame(const HostPath& path) const;

    /// A full game path, with drive, made from a relative one; "." and ".." are resolved.
    std::string absolute(std::string_view path) const;

    /// Whether a path leads to something below a folder once its dots are resolved. Goes by the
    /// spelling; what links on the disk do is theirs.
    bool isInside(std::string_view path, std::string_view folder) const;

    /// The current folder of the current drive, such as `C:\UnrealTournament` or `C:\`.
    std::string currentFolder() const;
    /// Changes the current folder of the drive that the path names (the current drive if none);
    /// never the current drive. The process's folder follows if the drive is the current one.
    /// Raises 76 if there is no such folder, 68 if there is no such drive.
    void changeFolder(std::string_view path);
    /// Makes the drive of the text's first letter current. Raises 68, or 5 for a text without one.
    void changeDrive(std::string_view drive);
    /// Letters of the drives that are there, in order.
    std::vector<char> drives() const;

    /// To be called after we made, renamed or removed a name in a host folder.
    void forget(const HostPath& folder) { index_.forget(folder); }
    /// To be called after we wrote a file that may not have been there.
    void add(const HostPath& file) { index_.add(file); }
    /// See FolderIndex.
    void setManyQuestions(bool many) { index_.setManyQuestions(many); }

  private:
    const HostPath& rootOf(char drive) const;
    char longestRootOf(const HostPath& path) const;
    std::optional<HostPath> findFull(std::string_view full);
    HostPath toHostFull(std::string_view full);
    LayeredFolder* layersOf(std::string_view full);
    LayeredFolder* layersRound(std::string_view full);

    struct Folder {
        HostPath path;
        LayeredFolder* layers = nullptr;  // of several host folders, of which `path` is one
    };
    LayeredFolder::Finding findIn(const Folder& folder, std::string_view name);

    Host& host_;
    DriveMap roots_;
    FolderIndex index_;
    Layers layers_{host_, index_};
    // Full game path of a folder -> where it was found. Trusted as long as there is such a folder.
    std::map<std::string, Folder, std::less<>> found_;
    std::map<char, std::string> folders_;  // drive letter -> current folder in the game's form
    char drive_ = 'C';
};

}  // namespace tessaro
