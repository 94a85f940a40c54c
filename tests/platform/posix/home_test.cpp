#include "platform/posix/home.h"

#include <gtest/gtest.h>

#include "platform/files/programfolder.h"
#include "support/programfolder.h"

namespace tessaro {
namespace {

TEST(UserDataFolder, LiesWhereTheDesktopKeepsWhatUsersMake) {
    const test::Environment data("XDG_DATA_HOME", "/data/of/me");
    EXPECT_EQ(userDataFolder(), "/data/of/me/tessaro");
}

TEST(UserDataFolder, LiesInTheHomeFolderWhereTheDesktopNamesNoOther) {
    const test::Environment home("HOME", "/home/me");
    for (const char* none : {"", "share"}) {
        const test::Environment data("XDG_DATA_HOME", none);
        EXPECT_EQ(userDataFolder(), "/home/me/.local/share/tessaro") << none;
    }
}

}  // namespace
}  // namespace tessaro
