#pragma once
// The routines that start-up needs and every form shares.

#include <functional>
#include <string_view>

#include "core/program.h"

namespace tessaro {

/// A form's place or size, in twips.
struct Box {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
};

/// Centred across, a little above the middle: the height alone counts with 85 %.
Box centeredOn(const Box& screen, const Box& form);

/// Waits by the seconds-since-midnight clock and serves events meanwhile. Across midnight it waits
/// until the clock has passed its start again.
void Pause(Events& events, double seconds);

/// Pauses so long, at least once, until `come`, however long that takes.
void pauseUntil(Events& events, double seconds, const std::function<bool()>& come);
/// Asks without a pause until `come`, however long that takes. The program takes no input
/// meanwhile.
void waitUntil(Events& events, const std::function<bool()>& come);

/// Whether something of that name is there, a folder or a file. Never raises.
YesNo DirExists(Program& program, std::string_view path);
/// Whether a file is there, hidden and system files too. Never raises.
YesNo FileExists(Program& program, std::string_view path);

/// Starts a sound; callers test `soundsOn` first. Raises 326 if there is none of that name.
void PlaySoundResource(Program& program, std::string_view name);

/// Whether the game's five folders stand in `base`, stopping at the first that does not.
YesNo ValidatePaths(Program& program, std::string_view base);

}  // namespace tessaro
