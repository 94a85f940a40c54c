#include "platform/windows/foldertime.h"

#include <iterator>
#include <string_view>

namespace tessaro {

namespace {

constexpr std::int64_t nanosecondsPerTick = 100;
constexpr std::int64_t ticksTo1970 = 116'444'736'000'000'000;

bool isOnAnotherMachine(HANDLE folder) {
    FILE_REMOTE_PROTOCOL_INFO info = {};
    return ::GetFileInformationByHandleEx(folder, FileRemoteProtocolInfo, &info, sizeof info);
}

bool keepsTimes(HANDLE folder) {
    wchar_t name[MAX_PATH + 1] = {};
    if (!::GetVolumeInformationByHandleW(folder, nullptr, 0, nullptr, nullptr, nullptr, name,
                                         static_cast<DWORD>(std::size(name))))
        return false;
    const std::wstring_view system = name;
    return (system == L"NTFS" || system == L"ReFS") && !isOnAnotherMachine(folder);
}

}  // namespace

std::int64_t nanoseconds(const FILETIME& time) {
    const auto ticks = static_cast<std::int64_t>(wide(time.dwHighDateTime, time.dwLowDateTime));
    return (ticks - ticksTo1970) * nanosecondsPerTick;
}

std::int64_t folderTime(HANDLE folder, const FILETIME& lastWrite) {
    static std::int64_t questions = 0;
    return keepsTimes(folder) ? nanoseconds(lastWrite) : ++questions;
}

}  // namespace tessaro
