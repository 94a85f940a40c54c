#include "core/modWinVersion.h"

#include <gtest/gtest.h>

namespace tessaro::test {
namespace {

OSVersionInfo versionOf(std::int32_t platform, std::int32_t major, std::int32_t minor,
                        std::int32_t build = 0) {
    OSVersionInfo info;
    EXPECT_EQ(GetOSVersion(info, SystemVersion{major, minor, build, platform, {}, {}}), 1);
    return info;
}

TEST(SystemName, FollowsPlatformAndVersion) {
    struct {
        std::int32_t platform, major, minor, code;
        const char* name;
    } const known[] = {
        {0, 3, 1, 2, "Windows 32s"},   {1, 4, 0, 3, "Windows 95"},    {1, 4, 10, 4, "Windows 98"},
        {1, 4, 90, 5, "Windows ME"},   {2, 3, 51, 32, "Windows NT3"}, {2, 4, 0, 33, "Windows NT4"},
        {2, 5, 0, 34, "Windows 2000"}, {2, 5, 1, 35, "Whistler"},     {2, 5, 2, 0, "Unknown"},
        {2, 10, 0, 0, "Unknown"},      {1, 4, 11, 0, "Unknown"},      {7, 1, 1, 0, "0"},
    };
    for (const auto& one : known) {
        const OSVersionInfo info = versionOf(one.platform, one.major, one.minor);
        EXPECT_EQ(info.name, one.name);
        EXPECT_EQ(info.code, one.code) << one.name;
    }
}

TEST(SystemName, OnlyWindows98IsWindows98) {
    EXPECT_TRUE(isWindows98(versionOf(1, 4, 10)));
    EXPECT_FALSE(isWindows98(versionOf(1, 4, 90)));
    EXPECT_FALSE(isWindows98(versionOf(2, 5, 1)));
    EXPECT_FALSE(isWindows98(OSVersionInfo{}));
}

TEST(SystemName, OtherSystemsGiveTheirOwn) {
    OSVersionInfo info;
    GetOSVersion(info, SystemVersion{6, 1, 0, 99, {}, "Linux"});
    EXPECT_EQ(info.name, "Linux");
    EXPECT_EQ(info.code, 0);
}

TEST(SystemName, OfTheRunningSystemIsGivenAndIsNotWindows98) {
    OSVersionInfo info;
    EXPECT_EQ(GetOSVersion(info), 1);
    EXPECT_FALSE(info.name.empty());
    EXPECT_FALSE(isWindows98(info));
}

TEST(SystemVersionRecord, IsLeftAloneWhereTheSystemDoesNotSay) {
    OSVersionInfo info;
    info.name = "before";
    info.major = 9;
    EXPECT_EQ(GetOSVersion(info, std::nullopt), 0);
    EXPECT_EQ(info.name, "before");
    EXPECT_EQ(info.major, 9);
}

TEST(SystemVersionRecord, OlderLineKeepsTheLowHalfOfItsBuild) {
    EXPECT_EQ(versionOf(1, 4, 10, 0x040A08AE).build, 0x08AE);
    EXPECT_EQ(versionOf(2, 5, 0, 0x040A08AE).build, 0x040A08AE);
}

TEST(SystemVersionRecord, ServicePackIsCutAtItsFirstNul) {
    OSVersionInfo info;
    const std::string field("Service Pack 4\0rest", 19);
    GetOSVersion(info, SystemVersion{5, 0, 2195, 2, field, {}});
    EXPECT_EQ(info.servicePack, "Service Pack 4");
}

TEST(SystemVersionRecord, ServicePackWithoutANulIsEmpty) {
    OSVersionInfo info;
    info.servicePack = "before";
    GetOSVersion(info, SystemVersion{5, 0, 2195, 2, std::string(128, 'x'), {}});
    EXPECT_EQ(info.servicePack, "");
}

}  // namespace
}  // namespace tessaro::test
