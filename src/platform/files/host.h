#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessaro {

/// A path as the operating system takes it.
using HostPath = std::filesystem::path;

/// Tells a folder's content apart from what it was: changes when a name comes or goes.
struct FolderStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t changedNanoseconds = 0;
    bool operator==(const FolderStamp&) const = default;
};

/// What the host knows of one name. Sizes in bytes.
struct HostStatus {
    bool folder = false;
    bool readOnly = false;
    bool hidden = false;
    bool system = false;
    std::uintmax_t size = 0;
    std::uintmax_t names = 1;  ///< that a file has, this one included: its hard links
    FolderStamp stamp;
};

/// The contents of a file on their way to the disk, owned by whoever writes them: of a new file, or
/// of an old one, whose bytes are written over from the first on. A new file that ends without
/// `close` leaves nothing behind.
class HostWriter {
  public:
    virtual ~HostWriter() = default;
    virtual void write(std::string_view bytes) = 0;
    /// Writes all of another file. The system moves the bytes where it can.
    virtual void copy(const HostPath& from) = 0;
    /// Whether a new file has the owner, the permissions and the access list of the one that it was
    /// made like.
    virtual bool alike() const = 0;
    /// Pushes what was written to the disk and ends the file there. A new file has its name from
    /// here on, and where the system can do that not before, so that no kill leaves half of one.
    virtual void close() = 0;
    /// Does the same under another name than the new file was opened for, if that one is free and
    /// the file has none yet. Does nothing and gives false if not.
    virtual bool closeAs(const HostPath& /*name*/) { return false; }
};

/// A folder held open, so that asking for its stamp again costs less than going its path again.
class HeldFolder {
  public:
    virtual ~HeldFolder() = default;
    /// Nothing if the system no longer tells.
    virtual std::optional<FolderStamp> stamp() = 0;
};

/// A watch over a file that was read.
class FileWatch {
  public:
    virtual ~FileWatch() = default;
    /// Whether it is certain that its path still leads to the same bytes and may be used in the
    /// same ways. A watch that has once said no says no for good.
    virtual bool quiet() = 0;
};

/// A file's bytes, and the watch that was begun before they were read.
struct WatchedBytes {
    std::string bytes;
    std::unique_ptr<FileWatch> watch;
};

/// The exclusive right to change files in a folder, among programs of ours; given up at its end.
class FolderLock {
  public:
    virtual ~FolderLock() = default;
};

/// A name in a folder, with what a listing tells of it at no further cost.
struct ListedName {
    std::string name;
    /// Whether this is for sure a file, and neither a hidden nor a system one; if not, `status`
    /// tells.
    bool plainFile = false;
};

/// What the program asks of the operating system's files, on its one thread. It is made once and
/// lent to all who need it; what its members give belongs to the caller and must not outlive it.
/// Links are followed. Every member raises RunTimeError with the number that fits the host's error,
/// 52 for a name that no file can bear (one with a NUL in it); the failing twin of the tests raises
/// where it is told to.
class Host {
  public:
    virtual ~Host() = default;

    /// Nothing if there is no such name, or can be none. Raises 70 if the folder may not be
    /// searched.
    virtual std::optional<HostStatus> status(const HostPath& path) = 0;
    /// Names in a folder, in the host's order, without "." and "..".
    virtual std::vector<std::string> list(const HostPath& folder) = 0;
    /// The same with what the host's listing tells besides.
    virtual std::vector<ListedName> listNames(const HostPath& folder) {
        std::vector<ListedName> names;
        for (std::string& name : list(folder)) names.push_back({std::move(name)});
        return names;
    }
    /// Nothing on a host where holding a folder would stand in somebody's way.
    virtual std::unique_ptr<HeldFolder> hold(const HostPath& /*folder*/) { return nullptr; }
    /// Waits its turn. Nothing if it does not come within `patience`, or where there are no locks.
    /// Not to be asked for twice by one program: it would wait for itself.
    virtual std::unique_ptr<FolderLock> lock(const HostPath& folder,
                                             std::chrono::milliseconds patience) = 0;
    /// Whether this is a file (no folder, no device) that its flags and the system let us write.
    virtual bool writable(const HostPath& path) = 0;
    /// Whether the system lets us make files in a folder.
    virtual bool takesFiles(const HostPath& folder) = 0;
    virtual std::string read(const HostPath& file) = 0;
    /// The same with a watch, where the system tells of everything that could change the file; the
    /// next one may end it.
    virtual WatchedBytes readWatched(const HostPath& file) { return {read(file), nullptr}; }
    /// Waits until no other program has the file open for writing, as far as the system tells.
    /// False if one still has at the end of `patience`.
    virtual bool settles(const HostPath& file, std::chrono::milliseconds patience) = 0;
    /// A new file, under a name that must be free (58). If there is a file `like`, which it is to
    /// replace, it is made like that one, never more open.
    virtual std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) = 0;
    /// A new file, under a name that must be free (58), with owner and permissions of `from`, which
    /// is what it is then asked to copy.
    virtual std::unique_ptr<HostWriter> createCopy(const HostPath& file, const HostPath& from) = 0;
    /// Writes over a file that is there, which stays what it is.
    virtual std::unique_ptr<HostWriter> overwrite(const HostPath& file) = 0;
    /// Opens for appending and closes: creates an empty file, or changes nothing in one.
    virtual void touch(const HostPath& file) = 0;
    /// Renames over what is there.
    virtual void rename(const HostPath& from, const HostPath& to) = 0;
    /// Pushes the names in a folder to the disk, where the file system can do that.
    virtual void flushFolder(const HostPath& folder) = 0;
    virtual void removeFile(const HostPath& file) = 0;
    virtual void makeFolder(const HostPath& folder) = 0;
    /// One that nobody but its owner may look into.
    virtual void makePrivateFolder(const HostPath& folder) = 0;
    /// A folder for what must not be lost: everybody may write there, and it outlives a restart.
    virtual HostPath keepingFolder() = 0;
    /// The file behind a link (any number of steps), or the path itself.
    virtual HostPath target(const HostPath& path) = 0;

    virtual HostPath currentFolder() = 0;
    virtual void changeFolder(const HostPath& folder) = 0;
};

/// The real one for this operating system.
std::unique_ptr<Host> makeHost();

/// The file of the running program.
HostPath executablePath();

}  // namespace tessaro
