#pragma once
// The game's cache index `cache.ini`, one line for each downloaded package:
//
//     [Cache]
//     25378BF44584EF794EAC6E86872140C4=WhoPushedMe.u
//
// Characters 1 to 32 are the generated name under which the package lies in the cache folder (with
// the extension .uxx), character 33 separates, the true file name follows to the end. Lines are
// split by these positions alone.

#include <string>
#include <string_view>

#include "platform/runtime/int16.h"

namespace tessaro {

/// A kind of package: by what its true name ends in, and where it belongs.
struct FileType {
    std::string_view extension;
    std::string_view folder;  ///< under the destination root, with its backslash
    std::string_view label;
};

inline constexpr FileType FileTypeTable[] = {
    {".u", "system\\", "System File"},  {".utx", "textures\\", "Texture File"},
    {".unr", "maps\\", "Map File"},     {".umx", "music\\", "Music File"},
    {".uax", "sounds\\", "Sound File"},
};

/// The line under work. The fields outlive the line: a pass may see what an earlier one left.
struct CacheEntry {
    std::string InputData;   ///< the line as read
    std::string cfile;       ///< path of the cached file
    std::string mfile;       ///< true file name
    std::string msize;       ///< bytes of `cfile`, in digits
    std::string myftype;     ///< label of the kind last copied; never cleared
    std::string mypath;      ///< destination root, with its backslash
    Int16 linecnt;           ///< rows of the run, from 1
    Int16 linecnt2;          ///< number of the next failure, from 1
    Int16 EFile;             ///< files that were at the destination already
    std::size_t ExtLen = 0;  ///< length of the last extension found, with its dot
};

/// Whether a line holds no entry: the header as the game writes it, or nothing.
bool isSkippedLine(std::string_view line);
/// Path of the cached file of a line.
std::string cachedFileOf(std::string_view cacheFolder, std::string_view line);
/// True name in a line. Raises 5 for a line of fewer than 33 characters.
std::string trueNameOf(std::string_view line);

/// Looks for a dot among the last four characters of a name; `ExtLen` is then its distance from
/// the end, otherwise it keeps what an earlier name left there.
void getext(std::string_view name, std::size_t& ExtLen);
/// Whether the last `ExtLen` characters of a name are the extension of that kind. Case counts: the
/// game would load Foo.UNR, but it has no kind here.
bool isOfType(std::string_view name, std::size_t ExtLen, const FileType& type);

/// A size without its last three digits: kilobytes cut from the text, not divided. Raises 5 for a
/// size of fewer than three digits.
std::string kilobytesOf(std::string_view size);

}  // namespace tessaro
