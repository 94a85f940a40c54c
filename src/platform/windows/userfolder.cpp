#include <cstdlib>

#include "platform/files/programfolder.h"

namespace tessaro {

HostPath userDataFolder() {
    const wchar_t* data = ::_wgetenv(L"LOCALAPPDATA");
    return HostPath(data ? data : L"C:\\") / "Tessaro";
}

}  // namespace tessaro
