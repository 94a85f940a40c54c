#pragma once

#include "kit/forms/programend.h"
#include "platform/outside/events.h"

namespace tessaro {

/// The events and the clock of the running program.
class QtEvents : public Events {
  public:
    explicit QtEvents(ProgramEnd& programEnd) : end_(programEnd) {}

    // The three that serve wait up to a few milliseconds if nothing is pending: the program's waits
    // call them in a loop, which would otherwise keep a processor busy.
    void pump() override;
    void pumpEndless() override;
    /// Also what goes on while a child process runs.
    void serveWhileBlocked() override;
    double secondsSinceMidnight() override;

  private:
    void serve();

    ProgramEnd& end_;
};

}  // namespace tessaro
