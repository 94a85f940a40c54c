#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "bench/place.h"
#include "core/program.h"

namespace tessaro::bench {

/// Answers No to everything and shows nothing.
class NoDialogs : public Dialogs {
  public:
    Answer message(const Message&) override { return Answer::No; }
    std::string input(const std::string&, const std::string&, const std::string&) override {
        return {};
    }
    std::string pickFolder(const FolderPicker&) override { return {}; }
    std::string pickFileToOpen(const FilePicker&) override { return {}; }
    std::string pickFileToSave(const FilePicker&) override { return {}; }
};

/// The same one for all who never look at it.
Dialogs& noDialogs();

class NoSounds : public Sounds {
  public:
    std::string resource(std::string_view) override { return {}; }
    int start(std::string_view) override { return 0; }
};

/// A clock that each look at the events moves on by a second, so that no wait of the program takes
/// any time.
class JumpingClock : public Events {
  public:
    void pump() override { now_ += 1; }
    void pumpEndless() override { pump(); }
    void serveWhileBlocked() override { pump(); }
    double secondsSinceMidnight() override { return now_; }

  private:
    double now_ = 0;
};

/// A Wine prefix in a folder of its own, with the current folder inside. The folder is removed when
/// the program ends.
class World {
  public:
    explicit World(const HostPath& above);
    explicit World(const Place& place) : World(place.folder) {}
    ~World();
    World(const World&) = delete;
    World& operator=(const World&) = delete;

    const HostPath& folder() const { return folder_; }
    const DriveMap& drives() const { return drives_; }
    Host& host() { return *host_; }
    /// Host path of a path on `C:`, which must be in its exact letter case.
    HostPath at(std::string_view gamePath) const;
    /// Writes a file on `C:` and makes the folders above it.
    void write(std::string_view gamePath, std::string_view bytes) const;
    void makeFolder(std::string_view gamePath) const;

  private:
    HostPath start_;
    HostPath folder_;
    std::unique_ptr<Host> host_;
    DriveMap drives_;
};

/// A program as fresh as after its start: nothing that it could remember from an earlier run.
class FreshProgram {
    NoSounds sounds_;
    JumpingClock events_;
    std::unique_ptr<Processes> processes_;

  public:
    explicit FreshProgram(World& world, Dialogs& dialogs = noDialogs());

    Program program;
};

}  // namespace tessaro::bench
