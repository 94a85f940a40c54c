#pragma once

namespace tessaro {

/// Unwinds the handlers that are still running once the program was ended outright. No error:
/// nothing may report it.
struct ProgramEnded {};

/// Whether the program has come to its end. Made before everything else, because the dialogs and
/// the events look at it as well as the forms.
class ProgramEnd {
  public:
    /// Ends it outright: every event loop returns, and each then raises ProgramEnded through
    /// `throwIfEnded`.
    void end();
    bool ended() const { return ended_; }
    /// To be called after everything that ran an event loop inside a handler.
    void throwIfEnded() const {
        if (ended_) throw ProgramEnded{};
    }

    /// The last form has gone: the main loop returns. Handlers that still run come to their own
    /// end, but for those in a wait without one, which call `throwIfDeserted`.
    void desert();
    void throwIfDeserted() const {
        if (deserted_) throw ProgramEnded{};
    }

  private:
    bool ended_ = false;
    bool deserted_ = false;
};

}  // namespace tessaro
