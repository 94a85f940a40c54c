#include "tools/samplegame/settings.h"

#include <gtest/gtest.h>

#include "core/iniCalls.h"
#include "support/testprogram.h"

namespace tessaro::sample {
namespace {

TEST(SampleSettings, LeadToTheGameAtAFirstStart) {
    test::TestProgram test;
    test.world.makeFolder("C:\\UT");
    pointSettingsAt(test.world.at("C:\\UT"), test.world.at("C:\\Tessaro\\vornx.ini"));
    LoadSettings(test.program);
    EXPECT_EQ(test.program.settings.TimesUsed, 1);
    EXPECT_TRUE(test.program.gamePaths.UTSysPath.ends_with("\\System"));
}

}  // namespace
}  // namespace tessaro::sample
