#pragma once
// The credits of the about box: their text, and how they roll.

#include <string>

#include "core/modWinVersion.h"

namespace tessaro {

/// All lines, each with its line end.
std::string credits();

/// Where the credits stand while they roll upward without end. Sizes are in twips.
class CreditsRoll {
  public:
    static constexpr int width = 3495;
    static constexpr int height = 13400;
    static constexpr int firstTop = 3560;
    static constexpr int nextTop = 3700;

    int top() const { return top_; }
    /// One step. Windows 98 serves timers so seldom that it takes a wider one.
    void tick(const OSVersionInfo& system);

  private:
    int top_ = firstTop;
};

}  // namespace tessaro
