#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/files/drives.h"

namespace tessaro {

/// How a child's window comes up.
enum class Visibility { Hidden, Visible };

/// Starting programs. Made once and lent to all who need it; children belong to it, and the one
/// thread of the program waits in it.
class Processes {
  public:
    virtual ~Processes() = default;
    /// Starts a command line in the program's current folder and returns when the child has ended,
    /// however long that takes. Its exit code is not read; a program that cannot be started is the
    /// same as one that did nothing.
    virtual void run(const std::string& commandLine, Visibility visibility) = 0;
};

/// The real one for this operating system, which refers to `host`. `whileRunning` is called now and
/// then while a child runs, to keep the windows painted; what it raises leaves the wait, and the
/// child to itself.
std::unique_ptr<Processes> makeProcesses(Host& host, const DriveMap& drives,
                                         std::function<void()> whileRunning);

}  // namespace tessaro
