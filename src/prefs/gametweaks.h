#pragma once
// The three settings that the game keeps in its own files and hides from its menus:
//
//     UnrealTournament.ini  [URL]             LocalMap=CityIntro.unr   map behind the menu
//                           [Core.System]     PurgeCacheDays=30        age at which files go
//     User.ini              [Botpack.Ladder]  HasBeatenGame=False      True opens the boss skins

#include <string>
#include <string_view>

#include "core/clsINI.h"
#include "core/program.h"

namespace tessaro {

/// What the game opens with. In brackets the dialog's option.
enum class StartMap {
    None,       ///< as the dialog was designed: nothing has been read
    Custom,     ///< the map that is named (`Option6`)
    BlackLogo,  ///< an empty level behind the menu (`Option7`)
    Flyby       ///< the game's own introduction (`Option8`)
};

/// What the dialog shows of the game's files.
struct GameTweaks {
    std::string mapName;  ///< `Text3`; kept whichever option is selected
    StartMap startMap = StartMap::None;
    std::string purgeDays;  ///< `Text2`; need be no number
    int bossSkins = 0;      ///< `Check4`: 0 clear, 1 ticked, 2 greyed
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

}  // namespace tessaro
