#pragma once
// The three settings that the game keeps in its own files and hides from its menus, and the wipe
// of its download cache and of its temporary files:
//
//     UnrealTournament.ini  [URL]             LocalMap=CityIntro.unr   map behind the menu
//                           [Core.System]     PurgeCacheDays=30        age at which files go
//     User.ini              [Botpack.Ladder]  HasBeatenGame=False      True opens the boss skins

#include <string>
#include <string_view>

#include "core/clsINI.h"
#include "core/program.h"

namespace tessaro {

/// The option that is selected for the game's first map.
enum class StartMap {
    None,     ///< as the dialog was designed: nothing has been read
    Option6,  ///< the map in `Text3`
    Option7,  ///< the black logo
    Option8   ///< the flyby
};

/// What the dialog shows of the game's files.
struct GameTweaks {
    std::string Text3;  ///< map name; kept whichever option is selected
    StartMap startMap = StartMap::None;
    std::string Text2;  ///< days as text, which need be no number
    int Check4 = 0;     ///< boss skins: 0 clear, 1 ticked, 2 greyed
    bool operator==(const GameTweaks&) const = default;
};

/// How far a load came. What it did not reach stays as it was.
enum class TweaksRead { Complete, NoGameIni, NoUserIni };

/// From the folder in memory. Writes the defaults of keys that are not there. Raises 13 for a
/// `HasBeatenGame` that is no boolean, and what touching the files raises.
TweaksRead LoadGameTweaks(Program& program, clsINI& INI, GameTweaks& tweaks);

/// From a game folder just chosen. Without a `user.ini` it does not stop: it then reads
/// `HasBeatenGame` from `unrealtournament.ini`. Raises as above.
TweaksRead LoadGameTweaksFromFolder(Program& program, clsINI& INI, std::string_view folder,
                                    GameTweaks& tweaks);

/// Into the folder in memory, with the sound of success whatever came of it. Never raises.
void SaveGameTweaks(Program& program, clsINI& INI, const GameTweaks& tweaks);

/// Asks, then empties the cache folder and its index; asks, then deletes the temporary files in
/// the game's folder. What cannot be deleted stays. Deletes no folder and nothing behind a link.
void ClearCacheAndTempFiles(Program& program);

}  // namespace tessaro
