#pragma once
// What the three steps of the extractor's wizard decide.

#include <string>
#include <string_view>

#include "core/program.h"

namespace tessaro {

/// Whether the cache index stands in the folder shown: the text beside the tree and "\cache.ini".
/// A drive root is its own case, since its text ends in a backslash already.
bool cacheFolderIsValid(Program& program, std::string_view folderText,
                        std::string_view chosenFolder);

/// Reads the destination that the last wizard left in the settings file.
void loadExtractDest(Program& program, clsINI& phile);
/// Leaves the destination for the next wizard, whichever choice was made.
void saveExtractDest(Program& program, clsINI& phile, std::string_view destination);

/// Remembers the chosen cache folder if it has an index. It lands in the map path's slot, from
/// where it reaches the settings file if they are saved later.
void rememberCacheFolder(Program& program, const std::string& chosenFolder);

/// The folder offered for a separate destination: the last one used if it still exists.
std::string offeredDestination(Program& program);

/// Where an extraction goes, with a backslash at the end: the game's folder, or the one named in
/// the destination box.
std::string destinationRoot(const Program& program, bool intoTheGame,
                            const std::string& destinationText);

/// The new-folder dialogue below `folder`. Gives the text that the destination box then shows: the
/// answer as it was typed, or `folder` if nothing was made. Any failure is passed over.
std::string createDestination(Program& program, const std::string& folder);

}  // namespace tessaro
