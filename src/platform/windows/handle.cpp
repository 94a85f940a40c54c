#include "platform/windows/handle.h"

#include <algorithm>
#include <array>
#include <system_error>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

// From here on the system's calls want a name marked as a long one. Folders have less than files,
// which are to find room in them for a short name.
constexpr std::size_t shortEnough = MAX_PATH - 12;
constexpr std::wstring_view longMark = LR"(\\?\)";
constexpr std::wstring_view longShareMark = LR"(\\?\UNC)";
constexpr std::wstring_view shareMark = LR"(\\)";

constexpr DWORD shareOfDiskFull = 1295;  // a name for it is missing from the headers
constexpr DWORD mostAtOnce = 1U << 20U;

struct Meaning {
    DWORD error;
    std::errc meaning;
};

// A missing folder on the way is a missing file, as on other systems: who has to tell them apart
// looks for the folder.
constexpr std::array meanings{
    Meaning{ERROR_FILE_NOT_FOUND, std::errc::no_such_file_or_directory},
    Meaning{ERROR_PATH_NOT_FOUND, std::errc::no_such_file_or_directory},
    Meaning{ERROR_BAD_NETPATH, std::errc::no_such_file_or_directory},
    Meaning{ERROR_BAD_NET_NAME, std::errc::no_such_file_or_directory},
    Meaning{ERROR_DIRECTORY, std::errc::not_a_directory},
    Meaning{ERROR_ACCESS_DENIED, std::errc::permission_denied},
    Meaning{ERROR_PRIVILEGE_NOT_HELD, std::errc::permission_denied},
    Meaning{ERROR_SHARING_VIOLATION, std::errc::device_or_resource_busy},
    Meaning{ERROR_LOCK_VIOLATION, std::errc::device_or_resource_busy},
    Meaning{ERROR_DELETE_PENDING, std::errc::device_or_resource_busy},
    Meaning{ERROR_USER_MAPPED_FILE, std::errc::device_or_resource_busy},
    Meaning{ERROR_FILE_EXISTS, std::errc::file_exists},
    Meaning{ERROR_ALREADY_EXISTS, std::errc::file_exists},
    Meaning{ERROR_DISK_FULL, std::errc::no_space_on_device},
    Meaning{ERROR_HANDLE_DISK_FULL, std::errc::no_space_on_device},
    Meaning{shareOfDiskFull, std::errc::no_space_on_device},
    Meaning{ERROR_FILE_TOO_LARGE, std::errc::file_too_large},
    Meaning{ERROR_TOO_MANY_OPEN_FILES, std::errc::too_many_files_open},
    Meaning{ERROR_CRC, std::errc::io_error},
    Meaning{ERROR_IO_DEVICE, std::errc::io_error},
    Meaning{ERROR_INVALID_DRIVE, std::errc::no_such_device},
    Meaning{ERROR_INVALID_NAME, std::errc::bad_file_descriptor},
};

DWORD part(std::size_t size) {
    return static_cast<DWORD>(std::min<std::size_t>(size, mostAtOnce));
}

HANDLE opened(const HostPath& path, const Opening& opening) {
    return ::CreateFileW(systemName(path).c_str(), opening.access, opening.share, nullptr,
                         opening.disposition, opening.flags, nullptr);
}

bool isFolder(const HostPath& path) {
    const DWORD attributes = ::GetFileAttributesW(systemName(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

}  // namespace

void raiseLastError(const HostPath& path) {
    const DWORD error = ::GetLastError();
    if (error == ERROR_NOT_READY) throw RunTimeError(errors::DiskNotReady, path.string());
    const auto* known = std::ranges::find(meanings, error, &Meaning::error);
    raiseHostError(known == meanings.end()
                       ? std::error_code(static_cast<int>(error), std::system_category())
                       : std::make_error_code(known->meaning),
                   path.string());
}

bool canBeName(const HostPath& path) {
    const std::wstring& name = path.native();
    const std::size_t drive = name.starts_with(longMark) ? longMark.size() : 0;
    return name.find(L'\0') == std::wstring::npos &&
           name.find(L':', drive + 2) == std::wstring::npos;
}

std::wstring systemName(const HostPath& path) {
    const std::wstring& name = path.native();
    if (!canBeName(path)) throw RunTimeError(errors::BadFileNumber, path.string());
    if (name.size() < shortEnough || !path.is_absolute() || name.starts_with(longMark)) return name;
    // The system takes such a name as it stands: without dots, divided by backslashes.
    std::wstring whole = path.lexically_normal().native();
    if (!whole.starts_with(shareMark)) return whole.insert(0, longMark);
    return whole.replace(0, 1, longShareMark);
}

Handle::Handle(const HostPath& path, const Opening& opening)
    : path_(path), handle_(opened(path, opening)) {
    if (handle_ == INVALID_HANDLE_VALUE) raiseLastError(path);
}

Handle::~Handle() {
    if (handle_ != nullptr) ::CloseHandle(handle_);
}

BY_HANDLE_FILE_INFORMATION Handle::information() const {
    BY_HANDLE_FILE_INFORMATION info = {};
    require(::GetFileInformationByHandle(handle_, &info));
    return info;
}

void Handle::write(std::string_view bytes) {
    while (!bytes.empty()) {
        DWORD done = 0;
        require(::WriteFile(handle_, bytes.data(), part(bytes.size()), &done, nullptr));
        bytes.remove_prefix(done);
    }
}

std::size_t Handle::read(char* buffer, std::size_t size) {
    DWORD done = 0;
    require(::ReadFile(handle_, buffer, part(size), &done, nullptr));
    return done;
}

void Handle::close() {
    require(::CloseHandle(std::exchange(handle_, nullptr)));
}

Handle openRegular(const HostPath& file) {
    Opening opening{.access = GENERIC_READ};
    if (isFolder(file)) throw RunTimeError(errors::PathFileAccess, file.string());
    Handle opened(file, opening);
    if (!opened.onDisk()) throw RunTimeError(errors::PathFileAccess, file.string());
    return opened;
}

}  // namespace tessaro
