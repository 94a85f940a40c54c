#pragma once

#include "kit/forms/programend.h"
#include "platform/outside/events.h"

namespace tessaro {

/// The events and the clock of the running program.
class QtEvents : public Events {
  public:
    explicit QtEvents(ProgramEnd& programEnd) : end_(programEnd) {}

    /// Waits up to a few milliseconds if nothing is pending: the program's waits call this in a
    /// loop, which would otherwise keep a processor busy.
    void pump() override;
    double secondsSinceMidnight() override;

    /// Lets the windows paint while a child process runs. What the user presses meanwhile is lost
    /// on purpose: it was meant for a window that could not answer. The end of the desktop's
    /// session ends the program outright.
    void serveWhileBlocked();

  private:
    ProgramEnd& end_;
};

}  // namespace tessaro
