#include "shell/links.h"

#include <algorithm>
#include <string>

namespace tessaro {

void openLink(Desktop& desktop, std::string_view item) {
    const auto* link = std::ranges::find(links, item, &Link::item);
    if (link != std::end(links)) desktop.openAddress(std::string(link->address));
}

}  // namespace tessaro
