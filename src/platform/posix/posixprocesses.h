#pragma once

#include <functional>
#include <optional>

#include "platform/files/paths.h"
#include "platform/posix/childprocess.h"
#include "platform/posix/commandline.h"

namespace tessaro {

/// Starts programs as the game's player means them here: what was made for Windows through Wine,
/// everything else, such as a native `ucc`, directly.
///
/// The program's path is in the game's form and found without regard to case. Wine gets it and the
/// arguments as they stand. A native program gets full paths among its arguments as host paths.
class PosixProcesses : public Processes {
  public:
    PosixProcesses(Host& host, DriveMap drives, std::function<void()> whileRunning)
        : host_(host),
          drives_(std::move(drives)),
          paths_(host, drives_),
          whileRunning_(std::move(whileRunning)) {}

    void run(const std::string& commandLine, Visibility visibility) override;

  private:
    std::optional<ChildProcess> start(const CommandLine& line, Visibility visibility);
    std::vector<std::string> hostArguments(const CommandLine& line);
    HostPath hostProgram(const std::string& program);
    std::string hostArgument(const std::string& argument);

    Host& host_;
    DriveMap drives_;
    Paths paths_;  // kept for what it remembers of folders; its current one is not the program's
    std::function<void()> whileRunning_;
};

}  // namespace tessaro
