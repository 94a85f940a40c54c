#include "platform/files/nativegame.h"

namespace tessaro {

// The game for Windows keeps all of a folder in one place.

NativeNames nativeNames() {
    return {"System", ""};
}

std::optional<NativeGame> nativeGameIn(Host& /*host*/, const HostPath& /*folder*/) {
    return std::nullopt;
}

}  // namespace tessaro
