#pragma once

#include <cstdint>
#include <string>

namespace tessaro {

/// What is to be done with an icon in the desktop's tray. The numbers are the platform's.
enum class TrayAction { Add = 0, Modify = 1, Delete = 2 };

/// An icon in the desktop's tray, as the platform's short record describes it.
struct NotifyRecord {
    std::int32_t cbSize = 88;
    std::uintptr_t hWnd = 0;  ///< window that hears of the mouse; the icon's picture hangs on it
    std::int32_t uID = 1;
    std::int32_t uFlags = 7;                   ///< message, icon and tip count
    std::int32_t uCallbackMessage = 512;       ///< a mouse move
    std::int32_t hIcon = 0;                    ///< handle of the picture; 0 for none
    std::string szTip = std::string(1, '\0');  ///< up to 64 characters, its NUL among them
};

/// The mouse's messages on a tray icon. The window of the icon's record hears each as a mouse move
/// whose X in pixels is the message's number.
namespace traymessage {
inline constexpr int LButtonDown = 513;
inline constexpr int LButtonUp = 514;
inline constexpr int LButtonDblClk = 515;
inline constexpr int RButtonDown = 516;
inline constexpr int RButtonUp = 517;
inline constexpr int RButtonDblClk = 518;
}  // namespace traymessage

/// The user's desktop around the program. Nothing here tells of a failure.
class Desktop {
  public:
    virtual ~Desktop() = default;
    /// Hands an address to the user's browser and returns at once.
    virtual void openAddress(const std::string& address) = 0;
    virtual void notifyIcon(TrayAction action, const NotifyRecord& record) = 0;
};

}  // namespace tessaro
