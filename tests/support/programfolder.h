#pragma once

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/outside/processes.h"
#include "support/testworld.h"

namespace tessaro::test {

/// An environment variable that has another value as long as this lives.
class Environment {
  public:
    Environment(const char* name, const std::string& value) : name_(name) {
        if (const char* old = ::getenv(name)) old_ = old;
        ::setenv(name, value.c_str(), 1);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { old_ ? ::setenv(name_, old_->c_str(), 1) : ::unsetenv(name_); }

  private:
    const char* name_;
    std::optional<std::string> old_;
};

/// One of our files, by its number, turned to a file on the disk as long as this lives.
class Redirection {
  public:
    Redirection(int number, const HostPath& file) : number_(number), kept_(::dup(number)) {
        const int opened = ::open(file.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0600);
        ::dup2(opened, number);
        ::close(opened);
    }
    Redirection(const Redirection&) = delete;
    Redirection& operator=(const Redirection&) = delete;
    ~Redirection() {
        if (kept_ == -1) {
            ::close(number_);
        } else {
            ::dup2(kept_, number_);
            ::close(kept_);
        }
    }

  private:
    int number_;
    int kept_;
};

/// Tests that start real programs in a world of their own.
class ProgramFolder : public testing::Test {
  protected:
    ProgramFolder()
        : processes_(makeProcesses(world.host, world.drives, [this] { whileRunning(); })) {}

    /// A shell script that can be started. `$0` is its own path.
    void writeScript(const std::string& gamePath, const std::string& text) const {
        TestWorld::writeHost(world.at(gamePath), "#!/bin/sh\n" + text + "\n");
        makeStartable(gamePath);
    }
    void makeStartable(const std::string& gamePath) const {
        std::filesystem::permissions(world.at(gamePath), std::filesystem::perms::owner_all);
    }

    void run(const std::string& line, Visibility visibility = Visibility::Hidden) {
        processes_->run(line, visibility);
    }

    TestWorld world;
    std::function<void()> whileRunning = [] {};

  private:
    std::unique_ptr<Processes> processes_;
};

}  // namespace tessaro::test
