#pragma once

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
    FolderStamp stamp;
};

/// A new file under way. Its end without `close` leaves the file as far as it was written.
class HostWriter {
  public:
    virtual ~HostWriter() = default;
    virtual void write(std::string_view bytes) = 0;
    /// Pushes what was written to the disk, and closes. Nothing may be written afterwards.
    virtual void close() = 0;
};

/// A folder held open, so that asking for its stamp again costs less than going its path again.
class HeldFolder {
  public:
    virtual ~HeldFolder() = default;
    /// Nothing if the system no longer tells.
    virtual std::optional<FolderStamp> stamp() = 0;
};

/// What the program asks of the operating system's files. Links are followed. Every member raises
/// RunTimeError with the number that fits the host's error; the failing twin of the tests raises
/// where it is told to.
class Host {
  public:
    virtual ~Host() = default;

    /// Nothing if there is no such name. Raises 70 if the folder may not be searched.
    virtual std::optional<HostStatus> status(const HostPath& path) = 0;
    /// Names in a folder, in the host's order, without "." and "..".
    virtual std::vector<std::string> list(const HostPath& folder) = 0;
    /// Those of them that are no folders. A host that is told as much with the names need not ask
    /// for the status of each.
    virtual std::vector<std::string> listFiles(const HostPath& folder);
    /// Nothing on a host where holding a folder would stand in somebody's way.
    virtual std::unique_ptr<HeldFolder> hold(const HostPath& /*folder*/) { return nullptr; }
    /// Whether this is a file (no folder, no device) that its flags and the system let us write.
    virtual bool writable(const HostPath& path) = 0;
    virtual std::string read(const HostPath& file) = 0;
    /// Creates a file that must not exist yet, with the permissions of `like` if that exists.
    virtual std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) = 0;
    /// Opens for appending and closes: creates an empty file, or changes nothing in one.
    virtual void touch(const HostPath& file) = 0;
    /// Copies contents into `to`, which must not exist yet, with the permissions of `like` if that
    /// exists, else with those of `from`.
    virtual void copy(const HostPath& from, const HostPath& to, const HostPath& like) = 0;
    /// Renames over what is there.
    virtual void rename(const HostPath& from, const HostPath& to) = 0;
    /// Pushes the names in a folder to the disk, where the file system can do that.
    virtual void flushFolder(const HostPath& folder) = 0;
    virtual void removeFile(const HostPath& file) = 0;
    virtual void makeFolder(const HostPath& folder) = 0;
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
