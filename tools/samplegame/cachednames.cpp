#include "tools/samplegame/names.h"

#include <array>

namespace tessaro::sample {

namespace {

constexpr bool here = true;
constexpr bool purged = false;

constexpr auto cached = std::to_array<CachedName>({
    // maps
    {"DM-!!{QX}!!Boilerhouse-V2[ZZ-RMX]_b1.unr", here},
    {"DM-Tessellate][.unr", here},
    {"DM-Cybrosis][.unr", here},
    {"DM-Café-Noisette.unr", here},
    {"DM-Grüne-Straße.unr", here},
    {"DM-Mañana's Rooftop.unr", here},
    {"DM-Bread&Butter.unr", here},
    {"DM-1+1=Three.unr", here},
    {"DM-Up,Down,Sideways.unr", here},
    {"DM-Lowtide;Remix.unr", here},
    {"DM-Quarry-LE.unr", here},
    {"DM-Ünderpass-20€.unr", here},
    {"CTF-XM-WindmillsV1.unr", here},
    {"CTF-Twin Cranes (Fixed).unr", here},
    {"CTF-Loud-And-Clear.UNR", here},
    {"CTF-O'Malley's Yard.unr", here},
    {"CTF-Saltmine][-Night.unr", here},
    {"CTF-LighthousePoint.unr", here},
    {"CTF-Kettle.v3.unr", here},
    {"AS-Harbour Siege (beta 4).unr", here},
    {"AS-Paperworks.unr", here},
    {"DOM-Three Chimneys.unr", here},
    {"MH-Cellar (Fixed).unr", here},
    {"MH-TheVeryLongWayDownToTheHarbourAndAllTheWayBackUpAgainThroughTheOldTownInTheRain-"
     "Remastered-V9.unr",
     here},
    {"BT-Stepladder-rush.unr", here},
    {"DM-Orchard.unr", purged},
    {"DM-Sluice][.unr", purged},
    {"CTF-Ropewalk-V2.unr", purged},
    {"BT-Pogo.unr", purged},
    // scripts
    {"TarnCoreIII.u", here},
    {"TarnCoreIII.u", here},
    {"PoliteBots.u", here},
    {"WhoRangTheBell.u", here},
    {"NoSlopeNoGain.u", here},
    {"VCEv07_C.u", here},
    {"VCEv08_C.u", here},
    {"relics.u", here},
    {"Echo'n'Delay.u", here},
    {"Map Vote Lite 2.u", here},
    {"HUD+Clock.u", here},
    {"SmartScores_v1,5.u", here},
    {"RadarTile.u", here},
    {"LanternMut.u", here},
    {"QuietSpawn.u", here},
    {"FlakTally.u", here},
    {"ZoneTimer101.u", here},
    {"VCEv05_C.u", purged},
    {"BellTower.u", purged},
    {"RadarTileOld.u", purged},
    // textures
    {"BrickAndMoss.utx", here},
    {"Crane Yard.utx", here},
    {"FrêneEtChêne.utx", here},
    {"GlassWorks][.utx", here},
    {"QX_Signs.utx", here},
    {"RustBelt-II.utx", here},
    {"SaltMine.utx", here},
    {"Sand&Stone.utx", here},
    {"Skies(dusk).utx", here},
    {"TarnSkins.utx", here},
    {"TownHall.utx", here},
    {"WetPaint.utx", here},
    {"Windmill_tex.utx", here},
    {"Øresund.utx", here},
    {"OldBricks.utx", purged},
    {"SnowPack.utx", purged},
    {"TarnSkinsOld.utx", purged},
    // sounds
    {"Foghorns.uax", here},
    {"BellSounds.uax", here},
    {"CraneNoise.uax", here},
    {"Rain On Tin.uax", here},
    {"Küchenlärm.uax", here},
    {"Whistle'n'Shout.uax", here},
    {"OldBell.uax", purged},
    {"Seagulls.uax", purged},
    // music
    {"Harbour_Waltz.umx", here},
    {"slowtide.umx", here},
    {"Night+Train.umx", here},
    {"Brassband.umx", purged},
    {"Tin Drum.umx", purged},
    // never downloaded by the game itself, yet found in caches that players have filled by hand
    {"TarnCoreIII.int", here},
});

}  // namespace

std::span<const CachedName> cachedNames() {
    return cached;
}

}  // namespace tessaro::sample
