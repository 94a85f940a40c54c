#include "support/memory.h"

namespace tessaro::test {

// The system has no folder in memory.
void useMemoryForTemporaryFiles() {}

}  // namespace tessaro::test
