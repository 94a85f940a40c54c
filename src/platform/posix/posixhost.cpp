#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/host.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/posixcopy.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

constexpr mode_t anyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t permissionBits = S_IRWXU | S_IRWXG | S_IRWXO;
constexpr mode_t newFile = anyWriteBit | S_IRUSR | S_IRGRP | S_IROTH;
constexpr mode_t onlyOurs = S_IRUSR | S_IWUSR;
constexpr int mostLinks = 40;

void raiseIfFailed(int result, const HostPath& path) {
    if (result == -1) raiseErrno(path);
}

// Errors that mean no more than that there is no such name.
bool namesNothing(int error) {
    return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG || error == ELOOP;
}

bool beginsWithDot(const std::string& path) {
    const std::size_t name = path.rfind('/') + 1;
    return name < path.size() && path[name] == '.';
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

HostStatus statusFrom(const struct stat& info, const HostPath& path) {
    HostStatus status;
    status.folder = S_ISDIR(info.st_mode);
    status.readOnly = (info.st_mode & anyWriteBit) == 0;
    status.hidden = beginsWithDot(path.native());  // as Wine sees it
    status.size = static_cast<std::uintmax_t>(info.st_size);
    status.stamp = stampFrom(info);
    return status;
}

// Gives a new file the owner and the permissions of an old one. That only a privileged user may
// give files away is no reason to fail.
void dress(const Descriptor& file, const struct stat& like) {
    if (::fchown(file.get(), like.st_uid, like.st_gid) == -1) {
        static_cast<void>(::fchown(file.get(), static_cast<uid_t>(-1), like.st_gid) == 0);
    }
    raiseIfFailed(::fchmod(file.get(), like.st_mode & permissionBits), file.path());
}

Descriptor createLike(const HostPath& file, const HostPath& like) {
    struct stat info = {};
    const bool known = ::stat(like.c_str(), &info) == 0;
    // Nobody may look into a private file while its successor is being written.
    Descriptor created(file, O_WRONLY | O_CREAT | O_EXCL, known ? onlyOurs : newFile);
    if (known) dress(created, info);
    return created;
}

// Devices and pipes have no end, or block.
Descriptor openRegular(const HostPath& file, std::size_t& size) {
    Descriptor opened(file, O_RDONLY | O_NONBLOCK);
    struct stat info = {};
    raiseIfFailed(::fstat(opened.get(), &info), file);
    if (!S_ISREG(info.st_mode)) throw RunTimeError(errors::PathFileAccess, file.native());
    size = static_cast<std::size_t>(info.st_size);
    return opened;
}

class PosixWriter : public HostWriter {
  public:
    explicit PosixWriter(Descriptor file) : file_(std::move(file)) {}
    void write(std::string_view bytes) override { file_.write(bytes); }
    void close() override {
        file_.flush();
        file_.close();
    }

  private:
    Descriptor file_;
};

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

// Hands on each entry of a folder but "." and "..".
template <class Visit>
void walk(const HostPath& folder, const Visit& visit) {
    const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
    if (!open) raiseErrno(folder);
    errno = 0;
    while (const dirent* entry = ::readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") visit(*entry);
        errno = 0;
    }
    if (errno != 0) raiseErrno(folder);
}

class PosixHost : public Host {
  public:
    std::optional<HostStatus> status(const HostPath& path) override {
        struct stat info = {};
        // The system would read a name with a NUL in it only up to there.
        if (path.native().find('\0') != std::string::npos) return std::nullopt;
        if (::stat(path.c_str(), &info) == 0) return statusFrom(info, path);
        if (!namesNothing(errno)) raiseErrno(path);
        return std::nullopt;
    }

    std::vector<std::string> list(const HostPath& folder) override {
        std::vector<std::string> names;
        walk(folder, [&](const dirent& entry) { names.emplace_back(entry.d_name); });
        return names;
    }

#ifdef DT_UNKNOWN
    std::vector<std::string> listFiles(const HostPath& folder) override {
        std::vector<std::string> names;
        walk(folder, [&](const dirent& entry) {
            if (isFile(folder, entry)) names.emplace_back(entry.d_name);
        });
        return names;
    }
#endif

    std::unique_ptr<HeldFolder> hold(const HostPath& folder) override {
        return std::make_unique<PosixHeldFolder>(Descriptor(folder, O_RDONLY | O_DIRECTORY));
    }

    bool writable(const HostPath& path) override {
        struct stat info = {};
        // The bits count by themselves: the system lets root write whatever they say.
        return ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode) &&
               (info.st_mode & anyWriteBit) != 0 &&
               ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0;
    }

    std::string read(const HostPath& file) override {
        std::size_t size = 0;
        Descriptor opened = openRegular(file, size);
        // One byte more than expected, so that the end of the file shows at the first try.
        std::string bytes(size + 1, '\0');
        std::size_t have = 0;
        while (const std::size_t got = opened.read(bytes.data() + have, bytes.size() - have)) {
            have += got;
            if (have == bytes.size()) bytes.resize(2 * have);
        }
        bytes.resize(have);
        return bytes;
    }

    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override {
        return std::make_unique<PosixWriter>(createLike(file, like));
    }

    void touch(const HostPath& file) override {
        Descriptor(file, O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK, newFile).close();
    }

    void copy(const HostPath& from, const HostPath& to, const HostPath& like) override {
        std::size_t size = 0;
        Descriptor source = openRegular(from, size);
        Descriptor target = createLike(to, status(like) ? like : from);
        copyContents(source, target);
        target.close();
    }

    void rename(const HostPath& from, const HostPath& to) override {
        raiseIfFailed(::rename(from.c_str(), to.c_str()), to);
    }

    void flushFolder(const HostPath& folder) override {
        const Descriptor opened(folder, O_RDONLY | O_DIRECTORY);
        // Not every file system knows how to; the names reach the disk later then.
        static_cast<void>(uninterrupted([&] { return ::fsync(opened.get()); }));
    }

    void removeFile(const HostPath& file) override { raiseIfFailed(::unlink(file.c_str()), file); }

    void makeFolder(const HostPath& folder) override {
        raiseIfFailed(::mkdir(folder.c_str(), S_IRWXU | S_IRWXG | S_IRWXO), folder);
    }

    HostPath target(const HostPath& path) override {
        HostPath current = path;
        std::error_code ignored;
        for (int step = 0; step < mostLinks; ++step) {
            const HostPath next = std::filesystem::read_symlink(current, ignored);
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
        raiseIfFailed(::chdir(folder.c_str()), folder);
    }

#ifdef DT_UNKNOWN
  private:
    // Where the folder does not tell, as of a link, the file itself is asked.
    bool isFile(const HostPath& folder, const dirent& entry) {
        if (entry.d_type == DT_REG) return true;
        if (entry.d_type == DT_DIR) return false;
        const auto found = status(folder / entry.d_name);
        return found && !found->folder;
    }
#endif
};

}  // namespace

std::unique_ptr<Host> makeHost() {
    return std::make_unique<PosixHost>();
}

HostPath executablePath() {
    std::error_code error;
    HostPath file = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error) raiseHostError(error, "/proc/self/exe");
    return file;
}

}  // namespace tessaro
