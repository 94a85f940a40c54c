#pragma once

namespace tessaro {

/// The user interface's events and the clock, as the program's waits need them. Made once and lent
/// to all who wait. There is one thread: what happens while it waits happens inside of `pump`.
class Events {
  public:
    virtual ~Events() = default;
    /// Serves what is pending: clicks, timers, painting. Handlers may run inside.
    virtual void pump() = 0;
    /// Seconds since midnight, local time, with their fraction.
    virtual double secondsSinceMidnight() = 0;
};

}  // namespace tessaro
