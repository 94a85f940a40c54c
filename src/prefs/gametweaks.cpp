#include "prefs/gametweaks.h"

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

/// Any map but the two known ones is a custom one.
StartMap startMapOf(std::string_view map) {
    if (sameName(map, flybyMapRead)) return StartMap::Option8;
    if (sameName(map, logoMap)) return StartMap::Option7;
    return StartMap::Option6;
}

void readGameIni(clsINI& INI, GameTweaks& tweaks) {
    tweaks.Text3 = INI.getKeyValue("LocalMap", flybyMapRead, "URL");
    tweaks.startMap = startMapOf(tweaks.Text3);
    tweaks.Text2 = INI.getKeyValue("PurgeCacheDays", "30", "Core.System");
}

/// A false value does not clear the box.
void readBossSkins(clsINI& INI, GameTweaks& tweaks) {
    if (toBoolean(INI.getKeyValue("HasBeatenGame", "False", "Botpack.Ladder"))) tweaks.Check4 = 1;
}

void writeGameIni(clsINI& INI, const GameTweaks& tweaks) {
    INI.setKeyValue("PurgeCacheDays", tweaks.Text2, "Core.System");
    if (tweaks.startMap == StartMap::Option6) INI.setKeyValue("LocalMap", tweaks.Text3, "URL");
    if (tweaks.startMap == StartMap::Option7) INI.setKeyValue("LocalMap", logoMap, "URL");
    if (tweaks.startMap == StartMap::Option8) INI.setKeyValue("LocalMap", flybyMapWritten, "URL");
}

/// A greyed box writes neither value.
void writeBossSkins(clsINI& INI, const GameTweaks& tweaks) {
    if (tweaks.Check4 == 1) INI.setKeyValue("HasBeatenGame", "True", "Botpack.Ladder");
    if (tweaks.Check4 == 0) INI.setKeyValue("HasBeatenGame", "False", "Botpack.Ladder");
}

}  // namespace

TweaksRead LoadGameTweaks(Program& program, clsINI& INI, GameTweaks& tweaks) {
    const std::string gameIni = program.gamePaths.UTSysPath + "\\unrealtournament.ini";
    if (FileExists(program, gameIni) != Yes) return TweaksRead::NoGameIni;
    INI.inifile(gameIni);
    readGameIni(INI, tweaks);

    const std::string userIni = program.gamePaths.UTSysPath + "\\user.ini";
    if (FileExists(program, userIni) != Yes) return TweaksRead::NoUserIni;
    INI.inifile(userIni);
    readBossSkins(INI, tweaks);
    return TweaksRead::Complete;
}

TweaksRead LoadGameTweaksFromFolder(Program& program, clsINI& INI, std::string_view folder,
                                    GameTweaks& tweaks) {
    const std::string system = std::string(folder) + "\\system";
    const std::string gameIni = system + "\\unrealtournament.ini";
    if (FileExists(program, gameIni) != Yes) return TweaksRead::NoGameIni;
    INI.inifile(gameIni);
    readGameIni(INI, tweaks);

    // Unlike the load at opening, a missing user.ini does not end this one: the key is then read
    // from the file still at hand, which gains it if it has none.
    const std::string userIni = system + "\\user.ini";
    if (FileExists(program, userIni) == Yes) INI.inifile(userIni);
    readBossSkins(INI, tweaks);
    return TweaksRead::Complete;
}

void SaveGameTweaks(Program& program, clsINI& INI, const GameTweaks& tweaks) {
    // Writing through the class never raises: a file that cannot be written goes unnoticed.
    INI.inifile(program.gamePaths.UTSysPath + "\\unrealtournament.ini");
    writeGameIni(INI, tweaks);
    INI.inifile(program.gamePaths.UTSysPath + "\\user.ini");
    writeBossSkins(INI, tweaks);
    attempt([&] {
        if (program.soundsOn()) PlaySoundResource(program, "ladvance");
    });
}

}  // namespace tessaro
