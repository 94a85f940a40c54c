#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/program.h"
#include "platform/outside/listitems.h"

namespace tessaro {

/// The twin tools.
enum class PackageTool { Compressor, Decompressor };

/// An empty list for dropped files. A row holds the file's name, its folder with the backslash at
/// the end, and its size: text and first sub-item, joined the other way round, are the full path.
ListItems makeDropList();
/// The full path that a row of a drop list stands for.
std::string droppedPath(const ListItem& row);

/// "1,234,567" for a number of bytes; an empty text for 0.
std::string groupedDigits(std::uintmax_t bytes);

/// Takes the files of one drop into the list, as often as they are named. The compressor passes
/// over what has no length, which is also how folders stay out. The decompressor goes by the name
/// alone and reports each file that does not end in ".uz". Raises 6 for more than 32767 files, 5
/// for a path without a backslash, 53 for a file that cannot be measured.
void dropFiles(Program& program, PackageTool tool, ListItems& list,
               const std::vector<std::string>& paths);

/// Removes the selected row, if any row is highlighted.
void removeSelected(ListItems& list);

/// Asks where the results go, into `Program::CompressDest` or `DecompressDest`, and tells whether
/// the user chose a folder. With an empty list the user is told so instead.
bool askDestination(Program& program, PackageTool tool, const ListItems& list);

}  // namespace tessaro
