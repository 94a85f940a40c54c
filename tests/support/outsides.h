#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/outside/desktop.h"
#include "platform/outside/events.h"
#include "platform/outside/processes.h"
#include "platform/outside/sounds.h"

namespace tessaro::test {

/// Plays nothing and records the names of the sounds that were started, in lower case.
class RecordingSounds : public Sounds {
  public:
    std::vector<std::string> names;
    std::function<void()> onStart;

    /// Some bytes that tell the sounds apart.
    std::string resource(std::string_view name) override;
    int start(std::string_view name) override;
};

/// A clock in the hand: each pump runs `onPump`, then moves the clock by `step` seconds.
class ManualEvents : public Events {
  public:
    double now = 43200;  // noon
    double step = 0.05;
    int pumps = 0;
    int endlessPumps = 0;  ///< counted in `pumps` as well
    std::function<void()> onPump;
    /// What goes on outside while the program is blocked. A wait that nobody expected is
    /// left by a `std::logic_error`.
    std::function<void()> onBlocked;

    void pump() override;
    void pumpEndless() override;
    void serveWhileBlocked() override;
    double secondsSinceMidnight() override { return now; }
};

/// Starts nothing and records the command lines.
class RecordingProcesses : public Processes {
  public:
    struct Run {
        std::string commandLine;
        Visibility visibility;
        bool operator==(const Run&) const = default;
    };
    std::vector<Run> runs;
    /// Does what the child would do.
    std::function<void(const std::string& commandLine)> child;

    void run(const std::string& commandLine, Visibility visibility) override;
};

/// Opens nothing and shows no icon; records the addresses and what the tray was told.
class RecordingDesktop : public Desktop {
  public:
    std::vector<std::string> addresses;
    std::vector<std::pair<TrayAction, NotifyRecord>> notes;

    void openAddress(const std::string& address) override { addresses.push_back(address); }
    void notifyIcon(TrayAction action, const NotifyRecord& record) override {
        notes.emplace_back(action, record);
    }
};

}  // namespace tessaro::test
