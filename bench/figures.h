#pragma once
// The figures. Each prints its lines and gives whether all of them keep their marks.

#include "bench/place.h"

namespace tessaro::bench {

/// An extraction whose cached files are all missing, in a folder full of others, against reading
/// the lines of the index and asking the system for each file.
bool extractMissingFiles(const Place& place);
/// The same of a native game, whose cache is two folders: the one full of others, and a small one.
bool extractMissingNativeFiles(const Place& place);
/// An extraction of present files, against the standard library's copy of the same files.
bool extractPresentFiles(const Place& place);
/// A key of a large profile file, read and written, against GLib's key file parser.
bool profileFile(const Place& place);
/// The favourites of the game's browser, imported into the server list from a large file, against
/// GLib's key file parser; and what one of many costs, against one of few in a file of that size.
bool importFavorites(const Place& place);
/// The server list, loaded and saved, against reading and writing the same lines.
bool serverList(const Place& place);

/// The player archive: loading its list, and choosing the name of the next copy, against reading
/// the same lines and asking the system for each file, and against listing the folder once.
bool playerList(const Place& place);
/// A large file in the editor, loaded, typed into, saved and searched, against Qt's text box and
/// search and the system's own write.
bool editor(const Place& place);
/// The screenshot viewer's opening on many shots, against listing the folder and reading one
/// picture with Qt; and its step to another picture, against reading and painting that with Qt.
bool screenshots(const Place& place);
/// A batch through the compressor, against a shell's loop over the same files.
bool compressBatch(const Place& place);

/// From a process's start to its main window's first paint, and the memory resident then, against a
/// plain window with the same menu bar and picture; and what each step on the way takes.
bool firstPaint();
/// What each form leaves on the heap when it is opened and closed.
bool openings();

}  // namespace tessaro::bench
