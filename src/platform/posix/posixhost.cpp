#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <climits>
#include <csignal>

#include "platform/files/host.h"
#include "platform/files/hostpath.h"
#include "platform/files/patience.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/filewatch.h"
#include "platform/posix/posixwriter.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

constexpr mode_t anyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t newFile = anyWriteBit | S_IRUSR | S_IRGRP | S_IROTH;
constexpr int mostLinks = 40;

void raiseIfFailed(int result, const HostPath& path) {
    if (result == -1) raiseErrno(path);
}

// Errors that mean no more than that there is no such name.
bool namesNothing(int error) {
    return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP;
}

#ifdef __APPLE__
timespec changeTime(const struct stat& info) {
    return info.st_ctimespec;
}
#else
timespec changeTime(const struct stat& info) {
    return info.st_ctim;
}
#endif

FolderStamp stampFrom(const struct stat& info) {
    const timespec changed = changeTime(info);
    return {info.st_dev, info.st_ino, changed.tv_sec * 1'000'000'000LL + changed.tv_nsec};
}

HostStatus statusFrom(const struct stat& info) {
    HostStatus status;
    status.folder = S_ISDIR(info.st_mode);
    status.readOnly = (info.st_mode & anyWriteBit) == 0;
    status.size = static_cast<std::uintmax_t>(info.st_size);
    status.names = info.st_nlink;
    status.stamp = stampFrom(info);
    return status;
}

std::string contents(Descriptor& file) {
    // One byte more than expected, so that the end of the file shows at the first try.
    std::string bytes(file.size() + 1, '\0');
    std::size_t have = 0;
    while (const std::size_t got = file.read(bytes.data() + have, bytes.size() - have)) {
        have += got;
        if (have == bytes.size()) bytes.resize(2 * have);
    }
    bytes.resize(have);
    return bytes;
}

class PosixHeldFolder : public HeldFolder {
  public:
    explicit PosixHeldFolder(Descriptor folder) : folder_(std::move(folder)) {}
    std::optional<FolderStamp> stamp() override {
        struct stat info = {};
        if (::fstat(folder_.get(), &info) == -1) return std::nullopt;
        return stampFrom(info);
    }

  private:
    Descriptor folder_;
};

class PosixFolderLock : public FolderLock {
  public:
    explicit PosixFolderLock(Descriptor folder) : folder_(std::move(folder)) {}

  private:
    Descriptor folder_;  // the lock goes when this is closed, also by a kill
};

// The system refuses to lease a file that anybody has open for writing. One that it grants goes
// with the file's closing, at once; of those who come before that it tells us by a signal, which
// must not be one that ends the program.
bool isBeingWritten([[maybe_unused]] const Descriptor& file) {
#ifdef F_SETLEASE
    ::fcntl(file.get(), F_SETSIG, SIGURG);
    return ::fcntl(file.get(), F_SETLEASE, F_RDLCK) == -1 && errno == EAGAIN;
#else
    return false;
#endif
}

template <class Take>
void takeEntries(const HostPath& folder, Take&& take) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(systemName(folder)), ::closedir);
    if (!open) raiseErrno(folder);
    errno = 0;
    while (const dirent* entry = ::readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") take(*entry);
        errno = 0;
    }
    if (errno != 0) raiseErrno(folder);
}

// Where a link leads; nothing if there is none.
HostPath linkAt(const HostPath& path) {
    std::array<char, PATH_MAX> text;
    const ssize_t size = ::readlink(systemName(path), text.data(), text.size());
    return size > 0 ? HostPath(std::string_view(text.data(), static_cast<std::size_t>(size)))
                    : HostPath();
}

class PosixHost : public Host {
  public:
    std::optional<HostStatus> status(const HostPath& path) override {
        struct stat info = {};
        if (path.native().find('\0') != std::string::npos) return std::nullopt;  // no such name
        if (::stat(path.c_str(), &info) == 0) return statusFrom(info);
        if (!namesNothing(errno)) raiseErrno(path);
        return std::nullopt;
    }

    std::vector<std::string> list(const HostPath& folder) override {
        std::vector<std::string> names;
        takeEntries(folder, [&](const dirent& entry) { names.emplace_back(entry.d_name); });
        return names;
    }

    std::vector<ListedName> listNames(const HostPath& folder) override {
        std::vector<ListedName> names;
        takeEntries(folder, [&](const dirent& entry) {
            names.push_back({entry.d_name, entry.d_type == DT_REG});
        });
        return names;
    }

    std::unique_ptr<HeldFolder> hold(const HostPath& folder) override {
        return std::make_unique<PosixHeldFolder>(Descriptor(folder, O_RDONLY | O_DIRECTORY));
    }

    std::unique_ptr<FolderLock> lock(const HostPath& folder,
                                     std::chrono::milliseconds patience) override {
        std::unique_ptr<FolderLock> lock;
        attempt([&] {
            Descriptor opened(folder, O_RDONLY | O_DIRECTORY);
            const auto locked = [&] { return ::flock(opened.get(), LOCK_EX | LOCK_NB) == 0; };
            if (becomes(patience, [&] { return locked() || errno != EWOULDBLOCK; }) && locked())
                lock = std::make_unique<PosixFolderLock>(std::move(opened));
        });
        return lock;
    }

    bool writable(const HostPath& path) override {
        struct stat info = {};
        // The bits count by themselves: the system lets root write whatever they say.
        return ::stat(systemName(path), &info) == 0 && S_ISREG(info.st_mode) &&
               (info.st_mode & anyWriteBit) != 0 &&
               ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    }

    bool takesFiles(const HostPath& folder) override {
        struct stat info = {};
        return ::stat(systemName(folder), &info) == 0 && S_ISDIR(info.st_mode) &&
               ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
    }

    bool settles(const HostPath& file, std::chrono::milliseconds patience) override {
        bool settled = true;
        attempt([&] {
            const Descriptor opened(file, O_RDONLY | O_NONBLOCK);
            settled = becomes(patience, [&] { return !isBeingWritten(opened); });
        });
        return settled;
    }

    std::string read(const HostPath& file) override {
        Descriptor opened = openRegular(file);
        return contents(opened);
    }

    WatchedBytes readWatched(const HostPath& file) override {
        Descriptor opened = openRegular(file);
        auto watch = watchFile(opened);
        return {contents(opened), std::move(watch)};
    }

    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override {
        return writerLike(file, like);
    }

    std::unique_ptr<HostWriter> createCopy(const HostPath& file, const HostPath& from) override {
        return writerOfCopy(file, from);
    }

    std::unique_ptr<HostWriter> overwrite(const HostPath& file) override {
        return writerOver(file);
    }

    void touch(const HostPath& file) override {
        Descriptor(file, O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK, newFile).close();
    }

    void rename(const HostPath& from, const HostPath& to) override {
        raiseIfFailed(::rename(systemName(from), systemName(to)), to);
    }

    void flushFolder(const HostPath& folder) override {
        const Descriptor opened(folder, O_RDONLY | O_DIRECTORY);
        // Not every file system knows how to; the names reach the disk later then.
        static_cast<void>(uninterrupted([&] { return ::fsync(opened.get()); }));
    }

    void removeFile(const HostPath& file) override {
        raiseIfFailed(::unlink(systemName(file)), file);
    }

    void makeFolder(const HostPath& folder) override {
        raiseIfFailed(::mkdir(systemName(folder), S_IRWXU | S_IRWXG | S_IRWXO), folder);
    }

    void makePrivateFolder(const HostPath& folder) override {
        raiseIfFailed(::mkdir(systemName(folder), S_IRWXU), folder);
    }

    HostPath keepingFolder() override {
        const HostPath folder = "/var/tmp";
        std::error_code error;
        return ::access(folder.c_str(), W_OK | X_OK) == 0
                   ? folder
                   : std::filesystem::temp_directory_path(error);
    }

    HostPath target(const HostPath& path) override {
        HostPath current = path;
        for (int step = 0; step < mostLinks; ++step) {
            const HostPath next = linkAt(current);
            if (next.empty()) return current;
            current = next.is_absolute() ? next : current.parent_path() / next;
        }
        errno = ELOOP;
        raiseErrno(path);
    }

    HostPath currentFolder() override {
        std::error_code error;
        HostPath folder = std::filesystem::current_path(error);
        if (error) raiseHostError(error, "current folder");
        return folder;
    }

    void changeFolder(const HostPath& folder) override {
        raiseIfFailed(::chdir(systemName(folder)), folder);
    }
};

}  // namespace

std::unique_ptr<Host> makeHost() {
    // A limit on the size of files then shows as a failed write, as a full disk does.
    std::signal(SIGXFSZ, SIG_IGN);
    return std::make_unique<PosixHost>();
}

HostPath::string_type hostText(std::string_view text) {
    return HostPath::string_type(text);
}

HostPath executablePath() {
    std::error_code error;
    HostPath file = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) raiseHostError(error, "/proc/self/exe");
    return file;
}

}  // namespace tessaro
