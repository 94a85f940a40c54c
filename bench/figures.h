#pragma once
// The figures. Each prints its lines and gives whether all of them keep their marks.

namespace tessaro::bench {

/// An extraction whose cached files are all missing, in a folder full of others, against reading
/// the lines of the index and asking the system for each file.
bool extractMissingFiles();
/// The same of a native game, whose cache is two folders: the one full of others, and a small one.
bool extractMissingNativeFiles();
/// An extraction of present files, against the standard library's copy of the same files.
bool extractPresentFiles();
/// A key of a large profile file, read and written, against GLib's key file parser.
bool profileFile();
/// The favourites of the game's browser, imported into the server list from a large file, against
/// GLib's key file parser; and what one of many costs, against one of few in a file of that size.
bool importFavorites();
/// The server list, loaded and saved, against reading and writing the same lines.
bool serverList();

/// The player archive: loading its list, and choosing the name of the next copy, against reading
/// the same lines and asking the system for each file, and against listing the folder once.
bool playerList();
/// From a process's start to its main window's first paint, and the memory resident then, against
/// an empty main window.
bool firstPaint();
/// A large file in the editor, loaded, typed into, saved and searched, against Qt's text box and
/// search and the system's own write.
bool editor();
/// What each form leaves on the heap when it is opened and closed.
bool openings();
/// The screenshot viewer's opening on many shots, against listing the folder and reading one
/// picture with Qt; and its step to another picture, against reading and painting that with Qt.
bool screenshots();
/// A batch through the compressor, against a shell's loop over the same files.
bool compressBatch();

}  // namespace tessaro::bench
