#pragma once
// VORNX: small routines that the tool forms share.

#include <string>
#include <string_view>

#include "core/program.h"
#include "platform/outside/listitems.h"

namespace tessaro {

/// Counts the lines of the cache index and plays the sound for its size. Uses file number 1.
/// Raises what opening raises, and 6 for more than 32767 lines.
void AnnounceCacheSize(Program& program);

/// The text after the last backslash; also kept in `LastFileName`.
std::string GetFileName(Program& program, std::string_view path);
/// The text after the last backslash.
std::string FileNamePart(std::string_view path);

/// Whether any row of a form's `ListView1` is highlighted.
YesNo AnyListViewItemSelected(const ListItems& ListView1);

/// A folder chosen by the user, or an empty text.
std::string BrowseForFolder(Program& program, const FolderPicker& picker);

}  // namespace tessaro
