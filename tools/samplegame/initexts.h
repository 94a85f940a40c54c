#pragma once

#include <string_view>

namespace tessaro::sample {

// Texts of the two profile files, in the order of the files. A line `%0-3 Key[#]=v` stands for four
// lines, in each of which every `#` is the number; lines end in a plain line feed.

/// UnrealTournament.ini, part one: [URL] up to the network settings.
std::string_view engineText();

/// Part two: the renderers and the editor.
std::string_view driverText();

/// Part three: rules of the games, menus and server settings.
std::string_view gameText();

/// Part four: what a while of playing has added, the favourites above all.
std::string_view usedText();

/// User.ini.
std::string_view userText();

}  // namespace tessaro::sample
