#pragma once

#include <grp.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>

#include "platform/files/host.h"

namespace tessaro::test {

/// Where flushing costs nothing, if there is such a place: for tests that write hundreds of files.
inline HostPath inMemory() {
    const HostPath shared = "/dev/shm";
    return ::access(shared.c_str(), W_OK | X_OK) == 0 ? shared
                                                      : std::filesystem::temp_directory_path();
}

/// A second process of ours that does some work and ends. Its end is waited for.
class ForkedChild {
  public:
    /// `work` gives the child's exit code; what it raises makes that 99.
    template <class Work>
    explicit ForkedChild(Work&& work) : pid_(::fork()) {
        if (pid_ == 0) ::_exit(result(work));
    }
    ForkedChild(const ForkedChild&) = delete;
    ForkedChild& operator=(const ForkedChild&) = delete;
    ~ForkedChild() { exitCode(); }

    pid_t pid() const { return pid_; }
    /// Waits for the end. -1 for a child that was killed or could not be born.
    int exitCode() {
        if (pid_ <= 0) return code_;
        int status = 0;
        if (::waitpid(pid_, &status, 0) == pid_ && WIFEXITED(status)) code_ = WEXITSTATUS(status);
        pid_ = -1;
        return code_;
    }

  private:
    template <class Work>
    static int result(Work&& work) {
        try {
            return work();
        } catch (...) {
            return 99;
        }
    }

    pid_t pid_;
    int code_ = -1;
};

/// For a child of root: goes on as a user that owns nothing and is in no group. Others stay who
/// they are.
inline bool becomeOrdinaryUser() {
    constexpr uid_t stranger = 4321;
    return ::geteuid() != 0 ||
           (::setgroups(0, nullptr) == 0 && ::setresgid(stranger, stranger, stranger) == 0 &&
            ::setresuid(stranger, stranger, stranger) == 0);
}

}  // namespace tessaro::test
