// Runs the tests of the logic.

#include <gmock/gmock.h>

#include "support/memory.h"

int main(int argc, char** argv) {
    ::testing::InitGoogleMock(&argc, argv);
    tessaro::test::useMemoryForTemporaryFiles();
    return RUN_ALL_TESTS();
}
