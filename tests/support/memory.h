#pragma once

namespace tessaro::test {

/// Lets all temporary folders from here on lie in memory, where flushing costs nothing, unless
/// TMPDIR says where they go. Stays with the disk where there is no room in memory, or none that
/// programs may be started from.
void useMemoryForTemporaryFiles();

}  // namespace tessaro::test
