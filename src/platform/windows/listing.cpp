#include "platform/windows/listing.h"

#include <string_view>

#include "platform/windows/handle.h"
#include "platform/windows/widetext.h"

namespace tessaro {

namespace {

constexpr DWORD notPlain = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN |
                           FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_DEVICE |
                           FILE_ATTRIBUTE_REPARSE_POINT;

class Search {
  public:
    explicit Search(const HostPath& pattern)
        : handle_(::FindFirstFileExW(systemName(pattern).c_str(), FindExInfoBasic, &found_,
                                     FindExSearchNameMatch, nullptr, FIND_FIRST_EX_LARGE_FETCH)) {}
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;
    ~Search() {
        if (any()) ::FindClose(handle_);
    }

    bool any() const { return handle_ != INVALID_HANDLE_VALUE; }
    bool next() { return ::FindNextFileW(handle_, &found_) != FALSE; }
    const WIN32_FIND_DATAW& found() const { return found_; }

  private:
    WIN32_FIND_DATAW found_ = {};
    HANDLE handle_;
};

void take(const WIN32_FIND_DATAW& found, std::vector<ListedName>& names) {
    const std::wstring_view name = found.cFileName;
    if (name == L"." || name == L"..") return;
    if (auto text = fromWide(name))
        names.push_back({*std::move(text), (found.dwFileAttributes & notPlain) == 0});
}

}  // namespace

std::vector<ListedName> namesIn(const HostPath& folder) {
    std::vector<ListedName> names;
    Search search(folder / L"*");
    if (!search.any()) {
        // So an empty root answers, which has not even dots.
        if (::GetLastError() == ERROR_FILE_NOT_FOUND) return names;
        raiseLastError(folder);
    }
    do {
        take(search.found(), names);
    } while (search.next());
    if (::GetLastError() != ERROR_NO_MORE_FILES) raiseLastError(folder);
    return names;
}

std::optional<WIN32_FIND_DATAW> listedName(const HostPath& path) {
    if (path.native().find_first_of(L"*?<>\"") != std::wstring::npos) return std::nullopt;
    const Search search(path);
    return search.any() ? std::optional(search.found()) : std::nullopt;
}

}  // namespace tessaro
