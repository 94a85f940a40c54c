#pragma once

#include <windows.h>

#include <cstdint>

namespace tessaro {

/// A number that the system hands out in two halves.
constexpr std::uint64_t wide(DWORD high, DWORD low) {
    return std::uint64_t{high} << 32U | low;
}

/// A time of the system's in nanoseconds since 1970.
std::int64_t nanoseconds(const FILETIME& time);

/// When the names in an open folder changed last: the time that the disk has for it. Where the disk
/// does not keep that up to date (FAT, another machine's), a new time at each question, so that
/// nothing is remembered of such a folder.
std::int64_t folderTime(HANDLE folder, const FILETIME& lastWrite);

}  // namespace tessaro
