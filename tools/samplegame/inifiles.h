#pragma once

#include <string>

namespace tessaro::sample {

// The game's profile files as they lie on the disk: CRLF, ASCII. They do not depend on a seed.

/// UnrealTournament.ini of a game that has been played for a while: about 1,100 lines, with keys
/// that repeat, one section that stands twice, empty values, and favourites.
std::string unrealTournamentIni();

/// User.ini: about 610 lines. The section of the won ladder is absent, as in a game not yet won.
std::string userIni();

/// The template of UnrealTournament.ini, which the game uses when there is none.
std::string defaultIni();

/// The template of User.ini. It has the key `O` twice, as the shipped one does.
std::string defUserIni();

}  // namespace tessaro::sample
