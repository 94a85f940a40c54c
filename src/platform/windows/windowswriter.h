#pragma once

#include <memory>

#include "platform/files/host.h"

namespace tessaro {

/// What `Host::create`, `createCopy` and `overwrite` give.
std::unique_ptr<HostWriter> writerLike(const HostPath& file, const HostPath& like);
std::unique_ptr<HostWriter> writerOfCopy(const HostPath& file, const HostPath& from);
std::unique_ptr<HostWriter> writerOver(const HostPath& file);

}  // namespace tessaro
