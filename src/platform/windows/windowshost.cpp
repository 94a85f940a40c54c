#include <cstdio>
#include <optional>
#include <vector>

#include "platform/files/host.h"
#include "platform/files/hostpath.h"
#include "platform/files/patience.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/windows/foldertime.h"
#include "platform/windows/handle.h"
#include "platform/windows/listing.h"
#include "platform/windows/widetext.h"
#include "platform/windows/windowswriter.h"

namespace tessaro {

namespace {

// Lets a folder be opened, too.
constexpr DWORD anyName = FILE_FLAG_BACKUP_SEMANTICS;
constexpr std::size_t firstReading = 1U << 16U;
constexpr std::size_t longestPath = 1U << 15U;

void raiseIfFailed(BOOL done, const HostPath& path) {
    if (!done) raiseLastError(path);
}

// Errors that mean no more than that there is no such name.
bool namesNothing(DWORD error) {
    switch (error) {
        case ERROR_FILE_NOT_FOUND:
        case ERROR_PATH_NOT_FOUND:
        case ERROR_INVALID_NAME:
        case ERROR_DIRECTORY:
        case ERROR_BAD_PATHNAME:
        case ERROR_BAD_NETPATH:
        case ERROR_BAD_NET_NAME:
        case ERROR_FILENAME_EXCED_RANGE:
        case ERROR_CANT_RESOLVE_FILENAME:
            return true;
        default:
            return false;
    }
}

HostStatus statusFrom(DWORD attributes) {
    HostStatus status;
    status.folder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    // A folder's mark tells the desktop that it has a picture of its own, and nothing else.
    status.readOnly = !status.folder && (attributes & FILE_ATTRIBUTE_READONLY) != 0;
    status.hidden = (attributes & FILE_ATTRIBUTE_HIDDEN) != 0;
    status.system = (attributes & FILE_ATTRIBUTE_SYSTEM) != 0;
    return status;
}

HostStatus statusFrom(const Handle& opened) {
    const BY_HANDLE_FILE_INFORMATION info = opened.information();
    HostStatus status = statusFrom(info.dwFileAttributes);
    if (!status.folder) status.size = wide(info.nFileSizeHigh, info.nFileSizeLow);
    status.names = info.nNumberOfLinks;
    status.stamp = {info.dwVolumeSerialNumber, wide(info.nFileIndexHigh, info.nFileIndexLow),
                    status.folder ? folderTime(opened.get(), info.ftLastWriteTime)
                                  : nanoseconds(info.ftLastWriteTime)};
    return status;
}

HostStatus statusFrom(const WIN32_FIND_DATAW& listed) {
    HostStatus status = statusFrom(listed.dwFileAttributes);
    if (!status.folder) status.size = wide(listed.nFileSizeHigh, listed.nFileSizeLow);
    return status;
}

std::string contents(Handle& file) {
    std::string bytes(firstReading, '\0');
    std::size_t have = 0;
    while (const std::size_t got = file.read(bytes.data() + have, bytes.size() - have)) {
        have += got;
        if (have == bytes.size()) bytes.resize(2 * have);
    }
    bytes.resize(have);
    return bytes;
}

// A name for what programs of ours agree on about a folder, whoever started them.
std::wstring lockName(const BY_HANDLE_FILE_INFORMATION& folder) {
    wchar_t name[64];
    std::swprintf(name, std::size(name), L"Global\\tessaro-%08lx-%08lx%08lx",
                  folder.dwVolumeSerialNumber, folder.nFileIndexHigh, folder.nFileIndexLow);
    return name;
}

class WindowsFolderLock : public FolderLock {
  public:
    // Takes over a mutex that is ours.
    explicit WindowsFolderLock(Handle mutex) : mutex_(std::move(mutex)) {}
    WindowsFolderLock(const WindowsFolderLock&) = delete;
    WindowsFolderLock& operator=(const WindowsFolderLock&) = delete;
    ~WindowsFolderLock() override { ::ReleaseMutex(mutex_.get()); }

  private:
    Handle mutex_;
};

bool becomesOurs(const Handle& mutex, std::chrono::milliseconds patience) {
    const DWORD answer = ::WaitForSingleObject(mutex.get(), static_cast<DWORD>(patience.count()));
    // One that was killed has left it to us.
    return answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED;
}

bool isBeingWritten(const HostPath& file) {
    constexpr DWORD allButWriters = FILE_SHARE_READ | FILE_SHARE_DELETE;
    const Handle opened(::CreateFileW(systemName(file).c_str(), GENERIC_READ, allButWriters,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    return !opened && ::GetLastError() == ERROR_SHARING_VIOLATION;
}

class WindowsHost : public Host {
  public:
    std::optional<HostStatus> status(const HostPath& path) override {
        if (!canBeName(path)) return std::nullopt;
        const Handle opened(::CreateFileW(systemName(path).c_str(), FILE_READ_ATTRIBUTES,
                                          sharedWithAll, nullptr, OPEN_EXISTING, anyName, nullptr));
        if (opened) return opened.onDisk() ? std::optional(statusFrom(opened)) : std::nullopt;
        const DWORD error = ::GetLastError();
        if (namesNothing(error)) return std::nullopt;
        // A file that the system keeps to itself may still be seen in its folder.
        if (const auto listed = listedName(path)) return statusFrom(*listed);
        ::SetLastError(error);
        raiseLastError(path);
    }

    std::vector<std::string> list(const HostPath& folder) override {
        std::vector<std::string> names;
        for (ListedName& each : namesIn(folder)) names.push_back(std::move(each.name));
        return names;
    }

    std::vector<ListedName> listNames(const HostPath& folder) override { return namesIn(folder); }

    std::unique_ptr<FolderLock> lock(const HostPath& folder,
                                     std::chrono::milliseconds patience) override {
        std::unique_ptr<FolderLock> lock;
        attempt([&] {
            const Handle opened(folder, {.flags = anyName});
            const auto name = lockName(opened.information());
            Handle mutex(::CreateMutexW(nullptr, FALSE, name.c_str()));
            if (mutex && becomesOurs(mutex, patience))
                lock = std::make_unique<WindowsFolderLock>(std::move(mutex));
        });
        return lock;
    }

    bool writable(const HostPath& path) override {
        const auto known = status(path);
        if (!known || known->folder || known->readOnly) return false;
        const Handle opened(::CreateFileW(systemName(path).c_str(), GENERIC_WRITE, sharedWithAll,
                                          nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
        // Who has it open lets go of it some time, which is not what is asked.
        return opened || ::GetLastError() == ERROR_SHARING_VIOLATION;
    }

    bool takesFiles(const HostPath& folder) override {
        const auto known = status(folder);
        if (!known || !known->folder) return false;
        const Handle opened(::CreateFileW(systemName(folder).c_str(), FILE_ADD_FILE, sharedWithAll,
                                          nullptr, OPEN_EXISTING, anyName, nullptr));
        return static_cast<bool>(opened);
    }

    bool settles(const HostPath& file, std::chrono::milliseconds patience) override {
        return becomes(patience, [&] { return !isBeingWritten(file); });
    }

    std::string read(const HostPath& file) override {
        Handle opened = openRegular(file);
        return contents(opened);
    }

    std::unique_ptr<HostWriter> create(const HostPath& file, const HostPath& like) override {
        return writerLike(file, like);
    }

    std::unique_ptr<HostWriter> createCopy(const HostPath& file, const HostPath& from) override {
        return writerOfCopy(file, from);
    }

    std::unique_ptr<HostWriter> overwrite(const HostPath& file) override {
        return writerOver(file);
    }

    void touch(const HostPath& file) override {
        Handle(file, {FILE_APPEND_DATA, OPEN_ALWAYS}).close();
    }

    void rename(const HostPath& from, const HostPath& to) override {
        constexpr DWORD atOnce = MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH;
        raiseIfFailed(::MoveFileExW(systemName(from).c_str(), systemName(to).c_str(), atOnce), to);
    }

    // A renamed file's name is on the disk when `rename` returns.
    void flushFolder(const HostPath& /*folder*/) override {}

    void removeFile(const HostPath& file) override {
        raiseIfFailed(::DeleteFileW(systemName(file).c_str()), file);
    }

    void makeFolder(const HostPath& folder) override {
        raiseIfFailed(::CreateDirectoryW(systemName(folder).c_str(), nullptr), folder);
    }

    // Who may look into it, it has from the one that it lies in: a user's own are closed to others.
    void makePrivateFolder(const HostPath& folder) override { makeFolder(folder); }

    // Each user's own here, and emptied by its user only.
    HostPath keepingFolder() override { return std::filesystem::temp_directory_path(); }

    HostPath target(const HostPath& path) override {
        const DWORD attributes = ::GetFileAttributesW(systemName(path).c_str());
        if (attributes == INVALID_FILE_ATTRIBUTES ||
            (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
            return path;
        const Handle opened(path, {.flags = anyName});
        std::wstring name(longestPath, L'\0');
        const DWORD size = ::GetFinalPathNameByHandleW(
            opened.get(), name.data(), static_cast<DWORD>(name.size()), FILE_NAME_NORMALIZED);
        if (size == 0 || size >= name.size()) raiseLastError(path);
        name.resize(size);
        return name;
    }

    HostPath currentFolder() override {
        std::wstring name(longestPath, L'\0');
        const DWORD size = ::GetCurrentDirectoryW(static_cast<DWORD>(name.size()), name.data());
        if (size == 0 || size >= name.size()) raiseLastError("current folder");
        name.resize(size);
        return name;
    }

    void changeFolder(const HostPath& folder) override {
        raiseIfFailed(::SetCurrentDirectoryW(folder.c_str()), folder);
    }
};

}  // namespace

std::unique_ptr<Host> makeHost() {
    // A drive without a disk is an error to be told, and no box of the system's.
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
    return std::make_unique<WindowsHost>();
}

HostPath::string_type hostText(std::string_view text) {
    return toWide(text);
}

HostPath executablePath() {
    std::wstring name(longestPath, L'\0');
    const DWORD size = ::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    if (size == 0 || size >= name.size()) raiseLastError("own file");
    name.resize(size);
    return name;
}

}  // namespace tessaro
