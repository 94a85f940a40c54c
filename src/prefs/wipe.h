#pragma once
// The wipe of the game's download cache and of its temporary files.

#include "core/program.h"

namespace tessaro {

/// Asks, then empties the cache folder and its index; asks, then deletes the temporary files in
/// the game's folder. What cannot be deleted stays. Deletes no folder and nothing behind a link.
void ClearCacheAndTempFiles(Program& program);

}  // namespace tessaro
