#include "platform/files/filememory.h"

#include <utility>

#include "platform/files/wholefile.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

void FileMemory::read(std::string_view path, const HostPath& file) {
    // A watch takes longer than to read a small file, and most are read once.
    const bool again = path == path_;
    path_ = path;
    watch_.reset();
    WatchedBytes fresh = again ? host_.readWatched(file) : WatchedBytes{host_.read(file), nullptr};
    if (!bytes_ || *bytes_ != fresh.bytes)
        bytes_ = std::make_shared<const std::string>(std::move(fresh.bytes));
    watch_ = std::move(fresh.watch);
    writable_ = watch_ && attempt([&] { requireReplaceable(host_, file); });
}

}  // namespace tessaro
