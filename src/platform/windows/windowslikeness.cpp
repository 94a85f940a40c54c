#include "platform/windows/windowslikeness.h"

#include <aclapi.h>

#include <memory>
#include <string>

#include "platform/windows/handle.h"

namespace tessaro {

namespace {

constexpr DWORD lasting = FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM |
                          FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

// The system's memory with an access list, given back at the end.
class AccessList {
  public:
    explicit AccessList(std::wstring file)
        : known_(::GetNamedSecurityInfoW(file.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION,
                                         nullptr, nullptr, &list_, nullptr,
                                         &descriptor_) == ERROR_SUCCESS) {}
    AccessList(const AccessList&) = delete;
    AccessList& operator=(const AccessList&) = delete;
    ~AccessList() { ::LocalFree(descriptor_); }

    // A disk without lists has none to give.
    bool giveTo(HANDLE file) const {
        return !known_ ||
               ::SetSecurityInfo(file, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | reach(), nullptr,
                                 nullptr, list_, nullptr) == ERROR_SUCCESS;
    }

  private:
    // Whether the folder's list counts for the file, too.
    SECURITY_INFORMATION reach() const {
        SECURITY_DESCRIPTOR_CONTROL control = 0;
        DWORD revision = 0;
        ::GetSecurityDescriptorControl(descriptor_, &control, &revision);
        return (control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION
                                                  : UNPROTECTED_DACL_SECURITY_INFORMATION;
    }

    PSECURITY_DESCRIPTOR descriptor_ = nullptr;
    PACL list_ = nullptr;
    bool known_;
};

// The first stream is the contents.
bool hasMoreStreams(const HostPath& file) {
    WIN32_FIND_STREAM_DATA stream = {};
    const HANDLE search =
        ::FindFirstStreamW(systemName(file).c_str(), FindStreamInfoStandard, &stream, 0);
    if (search == INVALID_HANDLE_VALUE) return false;
    const bool more = ::FindNextStreamW(search, &stream) != FALSE;
    ::FindClose(search);
    return more;
}

}  // namespace

std::optional<DWORD> lastingAttributes(const HostPath& file) {
    const DWORD attributes = ::GetFileAttributesW(systemName(file).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) return std::nullopt;
    return attributes & lasting;
}

bool giveAccess(HANDLE file, const HostPath& like) {
    return AccessList(systemName(like)).giveTo(file) && !hasMoreStreams(like);
}

}  // namespace tessaro
