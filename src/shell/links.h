#pragma once
// The links of the menu: where each item leads.

#include <string_view>

#include "platform/outside/desktop.h"

namespace tessaro {

/// One menu item and its address. A site that is no longer there is asked of the web archive, as it
/// stood when the game was young.
struct Link {
    std::string_view item;
    std::string_view address;
};

inline constexpr Link links[] = {
    {"mnuwwwut", "https://www.oldunreal.com/"},
    {"mnuwwwplanet", "https://web.archive.org/web/2002/http://www.planetunreal.com/"},
    {"mnuutitalia", "https://web.archive.org/web/2002/http://www.unrealitalia.com/"},
    {"mnuunrealfiles", "https://web.archive.org/web/2002/http://www.unrealfiles.com/"},
    {"mnuunreality", "https://web.archive.org/web/2002/http://www.unreality.org/"},
};

/// Opens a menu item's address in the user's browser, without waiting for it. A failure shows
/// nothing.
void openLink(Desktop& desktop, std::string_view item);

}  // namespace tessaro
