#include "prefs/gametweaks.h"

#include "core/gamefiles.h"
#include "core/routines.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"
#include "platform/text/numbers.h"

namespace tessaro {
namespace {

constexpr std::string_view logoMap = "entry.unr";
// The writer spells the flyby's map with a small `i`, the reader's default has a capital one. The
// reader compares without regard to case.
constexpr std::string_view flybyMapRead = "CityIntro.unr";
constexpr std::string_view flybyMapWritten = "Cityintro.unr";

// Any map but the two known ones is a custom one.
StartMap startMapOf(std::string_view map) {
    if (sameName(map, flybyMapRead)) return StartMap::Flyby;
    if (sameName(map, logoMap)) return StartMap::BlackLogo;
    return StartMap::Custom;
}

void readGameIni(clsINI& INI, GameTweaks& tweaks) {
    tweaks.mapName = INI.getKeyValue("LocalMap", flybyMapRead, "URL");
    tweaks.startMap = startMapOf(tweaks.mapName);
    tweaks.purgeDays = INI.getKeyValue("PurgeCacheDays", "30", "Core.System");
}

// A false value does not clear the box.
void readBossSkins(clsINI& INI, GameTweaks& tweaks) {
    if (toBoolean(INI.getKeyValue("HasBeatenGame", "False", "Botpack.Ladder")))
        tweaks.bossSkins = 1;
}

void writeGameIni(clsINI& INI, const GameTweaks& tweaks) {
    INI.setKeyValue("PurgeCacheDays", tweaks.purgeDays, "Core.System");
    if (tweaks.startMap == StartMap::Custom) INI.setKeyValue("LocalMap", tweaks.mapName, "URL");
    if (tweaks.startMap == StartMap::BlackLogo) INI.setKeyValue("LocalMap", logoMap, "URL");
    if (tweaks.startMap == StartMap::Flyby) INI.setKeyValue("LocalMap", flybyMapWritten, "URL");
}

// A greyed box writes neither value.
void writeBossSkins(clsINI& INI, const GameTweaks& tweaks) {
    if (tweaks.bossSkins == 1) INI.setKeyValue("HasBeatenGame", "True", "Botpack.Ladder");
    if (tweaks.bossSkins == 0) INI.setKeyValue("HasBeatenGame", "False", "Botpack.Ladder");
}

}  // namespace

TweaksRead LoadGameTweaks(Program& program, clsINI& INI, GameTweaks& tweaks) {
    const std::string gameIni = gameIniIn(program.gamePaths.UTSysPath);
    if (FileExists(program, gameIni) != Yes) return TweaksRead::NoGameIni;
    INI.inifile(gameIni);
    readGameIni(INI, tweaks);

    const std::string userIni = userIniIn(program.gamePaths.UTSysPath);
    if (FileExists(program, userIni) != Yes) return TweaksRead::NoUserIni;
    INI.inifile(userIni);
    readBossSkins(INI, tweaks);
    return TweaksRead::Complete;
}

TweaksRead LoadGameTweaksFromFolder(Program& program, clsINI& INI, std::string_view folder,
                                    GameTweaks& tweaks) {
    const std::string system = std::string(folder) + "\\system";
    const std::string gameIni = gameIniIn(system);
    if (FileExists(program, gameIni) != Yes) return TweaksRead::NoGameIni;
    INI.inifile(gameIni);
    readGameIni(INI, tweaks);

    // Unlike the load at opening, a missing user.ini does not end this one: the key is then read
    // from the file still at hand, which gains it if it has none.
    const std::string userIni = userIniIn(system);
    if (FileExists(program, userIni) == Yes) INI.inifile(userIni);
    readBossSkins(INI, tweaks);
    return TweaksRead::Complete;
}

void SaveGameTweaks(Program& program, clsINI& INI, const GameTweaks& tweaks) {
    // Writing through the class never raises: a file that cannot be written goes unnoticed.
    INI.inifile(gameIniIn(program.gamePaths.UTSysPath));
    writeGameIni(INI, tweaks);
    INI.inifile(userIniIn(program.gamePaths.UTSysPath));
    writeBossSkins(INI, tweaks);
    attempt([&] {
        if (program.soundsOn()) PlaySoundResource(program, "ladvance");
    });
}

}  // namespace tessaro
