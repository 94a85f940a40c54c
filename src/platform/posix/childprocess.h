#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/outside/processes.h"

namespace tessaro {

/// A program that we started. If this goes before the program has ended, the program runs on and
/// is left to itself.
class ChildProcess {
  public:
    /// Starts the program that the first argument names: a path, or a name to be looked for on
    /// PATH. It gets an empty standard input, the signals as a fresh program expects them, and no
    /// open file but the standard three; if hidden, what it prints goes nowhere. Nothing if it
    /// cannot be started.
    static std::optional<ChildProcess> start(const std::vector<std::string>& arguments,
                                             Visibility visibility);
    ChildProcess(ChildProcess&& other) noexcept
        : pid_(other.pid_), handle_(std::exchange(other.handle_, -1)) {}
    ChildProcess& operator=(ChildProcess&&) = delete;
    ~ChildProcess();

    /// Returns as soon as the program has ended, with true, or after the time given. Not to be
    /// called again after true.
    bool endedWithin(std::chrono::milliseconds time);

  private:
    explicit ChildProcess(pid_t pid);
    bool reap(int options) const;
    bool lookedForWithin(std::chrono::milliseconds time) const;

    pid_t pid_;
    int handle_;  // becomes readable when the program ends; -1 where the system has no such thing
};

}  // namespace tessaro
