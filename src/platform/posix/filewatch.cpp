#include "platform/posix/filewatch.h"

#ifdef __linux__

#include <fcntl.h>
#include <linux/magic.h>
#include <sys/epoll.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/files/standins.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"

// What makes it certain that a file is as it was read, without a look at its bytes. Its stamps
// would not do: they are as coarse as the system's clock, which can be set, and stay behind while a
// program writes through memory that it has mapped the file into.
//
//   - When it was read, nobody had it open for writing or mapped. The system lends a file only
//     then, so it is borrowed and given back at once.
//   - Since then nobody has opened it or cut it short: the system tells us before it lets go on
//     whoever does it.
//   - No name on the way to it, nor one that differs in case only, has come, gone or changed its
//     rights, and no disk was mounted: its path still leads to it, and we may still do with it what
//     we might then.

namespace tessaro {

namespace {

constexpr int mostLinks = 40;
constexpr std::uint32_t folderEvents = IN_CREATE | IN_DELETE | IN_MOVE | IN_ATTRIB | IN_MOVE_SELF |
                                       IN_DELETE_SELF | IN_ONLYDIR | IN_DONT_FOLLOW;
constexpr std::uint32_t fileEvents =
    IN_OPEN | IN_MODIFY | IN_ATTRIB | IN_MOVE_SELF | IN_DELETE_SELF | IN_DONT_FOLLOW;

// Disks that nobody can change but through this system.
constexpr std::array<std::uint32_t, 7> ownDisks{
    EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,   BTRFS_SUPER_MAGIC, F2FS_SUPER_MAGIC,
    TMPFS_MAGIC,      MSDOS_SUPER_MAGIC, EXFAT_SUPER_MAGIC};

bool onOwnDisk(const HostPath& path) {
    struct statfs disk = {};
    return ::statfs(path.c_str(), &disk) == 0 &&
           std::ranges::find(ownDisks, static_cast<std::uint32_t>(disk.f_type)) != ownDisks.end();
}

bool isAt(const Descriptor& file, const HostPath& path) {
    struct stat opened = {};
    struct stat found = {};
    return ::fstat(file.get(), &opened) == 0 && ::lstat(path.c_str(), &found) == 0 &&
           opened.st_dev == found.st_dev && opened.st_ino == found.st_ino;
}

// Who opens the file for writing at this moment waits until it is over. The system would tell us by
// a signal then; the one that it has for that is deadly, this one is not.
bool openToNobodyElse(const Descriptor& file) {
    return ::fcntl(file.get(), F_SETSIG, SIGURG) == 0 &&
           ::fcntl(file.get(), F_SETLEASE, F_RDLCK) == 0 &&
           ::fcntl(file.get(), F_SETLEASE, F_UNLCK) == 0;
}

// Where the system reports to. There is one, kept to the end, since closing it takes long. What was
// watched before stays watched, and reports of it are passed over.
class WatchPost {
  public:
    WatchPost() {
        waitFor(events_, EPOLLIN);
        waitFor(mounts_, EPOLLPRI);
    }

    int begin() {
        wanted_.clear();
        newReports();
        quiet_ = true;
        return ++round_;
    }
    // Of what is reported with a name, only one that may be taken for this name counts.
    bool watch(const HostPath& path, std::uint32_t events, const std::string& name) {
        if (!onOwnDisk(path)) return false;
        const int watch = ::inotify_add_watch(events_.get(), path.c_str(), events);
        wanted_.emplace(watch, gameName(name));
        return watch != -1;
    }
    bool quiet(int round) {
        if (newReports()) quiet_ = false;
        return quiet_ && round == round_;
    }

  private:
    void waitFor(const Descriptor& source, std::uint32_t what) {
        epoll_event event{what, {.fd = source.get()}};
        if (::epoll_ctl(reports_.get(), EPOLL_CTL_ADD, source.get(), &event) == -1)
            raiseErrno(source.path());
    }

    bool newReports() {
        bool found = false;
        epoll_event report{};
        int count = 0;
        while ((count = ::epoll_wait(reports_.get(), &report, 1, 0)) > 0) {
            // What is told of mounts is forgotten by telling, an event by reading it.
            found = report.data.fd != events_.get() || newEvents() || found;
        }
        return found || count != 0;
    }
    bool newEvents() {
        bool found = false;
        alignas(inotify_event) std::array<char, 4096> buffer;
        const ssize_t size = ::read(events_.get(), buffer.data(), buffer.size());
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + at);
            found = matters(*event) || found;
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
        return found || size <= 0;
    }
    bool matters(const inotify_event& event) const {
        if (event.wd == -1) return true;  // there were too many to tell of
        const auto [first, last] = wanted_.equal_range(event.wd);
        return std::any_of(first, last, [&](const auto& each) {
            return event.len == 0 || sameName(gameName(event.name), each.second);
        });
    }

    Descriptor events_{::inotify_init1(IN_NONBLOCK | IN_CLOEXEC), "inotify"};
    Descriptor mounts_{"/proc/self/mountinfo", O_RDONLY};
    Descriptor reports_{::epoll_create1(EPOLL_CLOEXEC), "epoll"};
    std::multimap<int, std::string> wanted_;  // by watch, in the game's form
    int round_ = 0;
    bool quiet_ = false;
};

// A child that is forked off gets one of its own: it would take away what its parent waits for.
std::shared_ptr<WatchPost> watchPost() {
    static std::shared_ptr<WatchPost> post;
    static pid_t owner = 0;
    if (owner != ::getpid()) {
        post = std::make_shared<WatchPost>();
        owner = ::getpid();
    }
    return post;
}

// Goes the way to a file as the system does, and watches each folder that it looks a name up in.
class Way {
  public:
    explicit Way(const HostPath& path) { add(path); }

    bool watch(WatchPost& post) {
        while (!ahead_.empty()) {
            if (!post.watch(at_, folderEvents, ahead_.back().native()) || !step()) return false;
        }
        return post.watch(at_, fileEvents, {});
    }
    const HostPath& end() const { return at_; }

  private:
    void add(const HostPath& path) {
        if (path.is_absolute()) at_ = path.root_path();
        const HostPath names = path.relative_path();
        const std::vector<HostPath> forward(names.begin(), names.end());
        ahead_.insert(ahead_.end(), forward.rbegin(), forward.rend());
    }

    bool step() {
        const HostPath name = std::move(ahead_.back());
        ahead_.pop_back();
        std::error_code noLink;
        const HostPath target = std::filesystem::read_symlink(at_ / name, noLink);
        if (!target.empty()) {
            add(target);
            return ++links_ <= mostLinks;
        }
        if (name == "..") {
            at_ = at_.parent_path();
        } else if (name != ".") {
            at_ /= name;
        }
        return true;
    }

    HostPath at_;
    std::vector<HostPath> ahead_;  // the next one last
    int links_ = 0;
};

class LinuxFileWatch : public FileWatch {
  public:
    LinuxFileWatch(std::shared_ptr<WatchPost> post, int round)
        : post_(std::move(post)), round_(round) {}
    bool quiet() override { return post_->quiet(round_); }

  private:
    std::shared_ptr<WatchPost> post_;
    int round_;
};

}  // namespace

std::unique_ptr<FileWatch> watchFile(const Descriptor& file) {
    std::unique_ptr<FileWatch> watch;
    attempt([&] {
        const auto post = watchPost();
        const int round = post->begin();
        Way way(file.path());
        if (way.watch(*post) && isAt(file, way.end()) && openToNobodyElse(file))
            watch = std::make_unique<LinuxFileWatch>(post, round);
    });
    return watch;
}

}  // namespace tessaro

#else

namespace tessaro {

std::unique_ptr<FileWatch> watchFile(const Descriptor& /*file*/) {
    return nullptr;
}

}  // namespace tessaro

#endif
