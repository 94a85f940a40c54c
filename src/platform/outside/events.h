#pragma once

namespace tessaro {

/// The user interface's events and the clock, as the program's waits need them. Made once and lent
/// to all who wait. There is one thread: what happens while it waits happens inside of `pump`.
class Events {
  public:
    virtual ~Events() = default;
    /// Serves what is pending: clicks, timers, painting. Handlers may run inside.
    virtual void pump() = 0;
    /// The same inside a wait that nothing limits. The end of the desktop's session then ends the
    /// program at once, and the wait ends with the last form: nobody is left to see what it is for.
    virtual void pumpEndless() = 0;
    /// For a wait that nothing limits and that nobody may act in: lets the windows paint and no
    /// more. What the user presses is lost on purpose: it was meant for a window that could not
    /// answer. The end of the desktop's session ends the program at once.
    virtual void serveWhileBlocked() = 0;
    /// Seconds since midnight, local time, with their fraction.
    virtual double secondsSinceMidnight() = 0;
};

}  // namespace tessaro
