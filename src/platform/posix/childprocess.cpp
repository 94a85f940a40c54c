#include "platform/posix/childprocess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <memory>
#include <thread>

#include "platform/posix/descriptor.h"

#if __has_include(<sys/syscall.h>)
#include <sys/syscall.h>
#endif
#if defined(__GLIBC__) && (__GLIBC__ > 2 || __GLIBC_MINOR__ >= 34)
#define TESSARO_HAS_CLOSEFROM
#endif

extern char** environ;  // NOLINT(readability-redundant-declaration): not every system declares it

namespace tessaro {

namespace {

constexpr const char* nowhere = "/dev/null";
constexpr std::chrono::milliseconds betweenLooks{1};

// What becomes of the child's files between its birth and the program's first step.
class FileActions {
  public:
    explicit FileActions(Visibility visibility) {
        ::posix_spawn_file_actions_init(&actions_);
        point(STDIN_FILENO, O_RDONLY);
        if (visibility == Visibility::Hidden) {
            point(STDOUT_FILENO, O_WRONLY);
            point(STDERR_FILENO, O_WRONLY);
        }
#ifdef TESSARO_HAS_CLOSEFROM
        // What we open ourselves closes by its flag; libraries are not always that careful.
        ::posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);
#endif
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() {
        ::posix_spawn_file_actions_destroy(&actions_);
    }

    const posix_spawn_file_actions_t* get() const {
        return &actions_;
    }

  private:
    void point(int file, int flags) {
        ::posix_spawn_file_actions_addopen(&actions_, file, nowhere, flags, 0);
    }
    posix_spawn_file_actions_t actions_ = {};
};

// The toolkit ignores or blocks some signals, and a child would inherit that.
class FreshSignals {
  public:
    FreshSignals() {
        sigset_t all;
        sigset_t none;
        ::sigfillset(&all);
        ::sigemptyset(&none);
        ::posix_spawnattr_init(&attributes_);
        ::posix_spawnattr_setsigdefault(&attributes_, &all);
        ::posix_spawnattr_setsigmask(&attributes_, &none);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    FreshSignals(const FreshSignals&) = delete;
    FreshSignals& operator=(const FreshSignals&) = delete;
    ~FreshSignals() { ::posix_spawnattr_destroy(&attributes_); }

    const posix_spawnattr_t* get() const { return &attributes_; }

  private:
    posix_spawnattr_t attributes_ = {};
};

// The system would hand on such a text only up to there, and the child would work on another file.
bool holdsNul(const std::string& text) {
    return text.find('\0') != std::string::npos;
}

std::vector<char*> pointersTo(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

int openHandle([[maybe_unused]] pid_t pid) {
#ifdef SYS_pidfd_open
    // By its number, since the library's own declaration of it cannot be linked to everywhere.
    return static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
#else
    return -1;
#endif
}

}  // namespace

std::optional<ChildProcess> ChildProcess::start(const std::vector<std::string>& arguments,
                                                Visibility visibility) {
    if (std::ranges::any_of(arguments, holdsNul)) return std::nullopt;
    std::vector<std::string> texts = arguments;
    const FileActions files(visibility);
    const FreshSignals signals;
    pid_t pid = 0;
    const int error = ::posix_spawnp(&pid, texts.front().c_str(), files.get(), signals.get(),
                                     pointersTo(texts).data(), environ);
    if (error != 0) return std::nullopt;
    return ChildProcess(pid);
}

ChildProcess::ChildProcess(pid_t pid) : pid_(pid), handle_(openHandle(pid)) {}

ChildProcess::~ChildProcess() {
    if (handle_ != -1) ::close(handle_);
}

bool ChildProcess::endedWithin(std::chrono::milliseconds time) {
    if (handle_ == -1) return lookedForWithin(time);
    pollfd handle = {handle_, POLLIN, 0};
    // A signal cuts the wait short, which only brings the next one forward.
    if (::poll(&handle, 1, static_cast<int>(time.count())) <= 0) return false;
    return reap(0);
}

bool ChildProcess::reap(int options) const {
    // Where the system was told to forget our children there is none to wait for any more.
    return uninterrupted([&] { return ::waitpid(pid_, nullptr, options); }) != 0;
}

bool ChildProcess::lookedForWithin(std::chrono::milliseconds time) const {
    const auto end = std::chrono::steady_clock::now() + time;
    while (!reap(WNOHANG)) {
        if (std::chrono::steady_clock::now() >= end) return false;
        std::this_thread::sleep_for(betweenLooks);
    }
    return true;
}

}  // namespace tessaro
