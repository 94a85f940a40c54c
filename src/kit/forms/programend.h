#pragma once

namespace tessaro {

/// Unwinds the handlers that are still running once the program was ended outright. No error:
/// nothing may report it.
struct ProgramEnded {};

/// Whether the program was ended outright. Made before everything else, because the dialogs and the
/// events look at it as well as the forms.
class ProgramEnd {
  public:
    /// Lets every event loop return; each then raises ProgramEnded through `throwIfEnded`.
    void end();
    bool ended() const { return ended_; }
    /// To be called after everything that ran an event loop inside a handler.
    void throwIfEnded() const {
        if (ended_) throw ProgramEnded{};
    }

  private:
    bool ended_ = false;
};

}  // namespace tessaro
