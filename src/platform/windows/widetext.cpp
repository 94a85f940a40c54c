#include "platform/windows/widetext.h"

#include <windows.h>

namespace tessaro {

std::wstring toWide(std::string_view text) {
    const auto convert = [&](wchar_t* buffer, int size) {
        return ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), buffer,
                                     size);
    };
    std::wstring wide(static_cast<std::size_t>(convert(nullptr, 0)), L'\0');
    convert(wide.data(), static_cast<int>(wide.size()));
    return wide;
}

std::optional<std::string> fromWide(std::wstring_view text) {
    const auto convert = [&](char* buffer, int size) {
        return ::WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, text.data(),
                                     static_cast<int>(text.size()), buffer, size, nullptr, nullptr);
    };
    std::string narrow(static_cast<std::size_t>(convert(nullptr, 0)), '\0');
    if (narrow.empty() && !text.empty()) return std::nullopt;
    convert(narrow.data(), static_cast<int>(narrow.size()));
    return narrow;
}

}  // namespace tessaro
