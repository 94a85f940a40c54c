#include "platform/files/folderindex.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/disk.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using test::Call;
using test::errorOf;
using test::FailingHost;
using test::TestWorld;

// Gives a folder whatever stamp a test wants, as a slow clock or another machine's would.
class StampedHost : public FailingHost {
  public:
    using FailingHost::FailingHost;
    std::optional<HostStatus> status(const HostPath& path) override {
        auto status = FailingHost::status(path);
        if (status) status->stamp.changedNanoseconds = stamp;
        return status;
    }
    std::int64_t stamp = 1;  // long ago
};

std::int64_t now() {
    return std::chrono::nanoseconds(std::chrono::system_clock::now().time_since_epoch()).count();
}

TEST(FolderIndex, AMissCostsOneLookAtTheFolder) {
    TestWorld world;
    world.write("C:\\Cache\\a.uxx", "");
    StampedHost host(world.host);
    FolderIndex index(host);
    for (int i = 0; i < 100; ++i)
        EXPECT_FALSE(index.find(world.at("C:\\Cache"), std::to_string(i)).name);
    EXPECT_EQ(host.count(Call::Status), 100);
    EXPECT_EQ(host.count(Call::List), 1);
}

TEST(FolderIndex, AChangedStampDropsTheIndex) {
    TestWorld world;
    world.makeFolder("C:\\Cache");
    StampedHost host(world.host);
    FolderIndex index(host);
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "a").name);
    world.write("C:\\Cache\\a", "");
    host.stamp += 1;
    EXPECT_EQ(index.find(world.at("C:\\Cache"), "A").name, "a");
    EXPECT_EQ(host.count(Call::List), 2);
}

TEST(FolderIndex, AMissIsLookedUpAgainWhileTheStampMayHideAChange) {
    TestWorld world;
    world.makeFolder("C:\\Cache");
    StampedHost host(world.host);
    host.stamp = now() | 1;
    FolderIndex index(host);
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "a").name);
    world.write("C:\\Cache\\a", "");
    EXPECT_EQ(index.find(world.at("C:\\Cache"), "A").name, "a");
}

TEST(FolderIndex, TheFirstMissInAFolderThatHasJustChangedReadsItOnce) {
    TestWorld world;
    world.makeFolder("C:\\Cache");
    StampedHost host(world.host);
    host.stamp = now() | 1;
    FolderIndex index(host);
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "a").name);
    EXPECT_EQ(host.count(Call::List), 1);
    host.stamp = now() | 1;
    world.write("C:\\Cache\\a", "");
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "b").name);
    EXPECT_EQ(host.count(Call::List), 2);
    EXPECT_EQ(index.find(world.at("C:\\Cache"), "A").name, "a");
}

TEST(FolderIndex, WholeSecondsAreTakenForACoarseClock) {
    constexpr std::int64_t second = 1'000'000'000;
    TestWorld world;
    world.makeFolder("C:\\Cache");
    StampedHost host(world.host);
    host.stamp = (now() / second - 1) * second;
    FolderIndex index(host);
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "a").name);
    world.write("C:\\Cache\\a", "");
    EXPECT_EQ(index.find(world.at("C:\\Cache"), "a").name, "a");
}

TEST(FolderIndex, AClockAheadOfOursHidesNothing) {
    TestWorld world;
    world.makeFolder("C:\\Cache");
    StampedHost host(world.host);
    host.stamp = now() + 3'600'000'000'001;
    FolderIndex index(host);
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "a").name);
    world.write("C:\\Cache\\a", "");
    EXPECT_EQ(index.find(world.at("C:\\Cache"), "a").name, "a");
}

TEST(FolderIndex, EveryNewNameIsSeenAtOnceInARealFolder) {
    TestWorld world;
    world.makeFolder("C:\\Cache");
    FolderIndex index(world.host);
    for (int i = 0; i < 300; ++i) {
        const std::string name = "Name" + std::to_string(i);
        ASSERT_FALSE(index.find(world.at("C:\\Cache"), name).name) << i;
        world.write("C:\\Cache\\" + name, "");
        ASSERT_EQ(index.find(world.at("C:\\Cache"), "NAME" + std::to_string(i)).name, name);
    }
}

TEST(FolderIndex, AMissingFolderIsToldFromAMissingName) {
    TestWorld world;
    world.write("C:\\file", "");
    FolderIndex index(world.host);
    EXPECT_TRUE(index.find(world.driveC(), "x").folder);
    EXPECT_FALSE(index.find(world.at("C:\\nowhere"), "x").folder);
    EXPECT_FALSE(index.find(world.at("C:\\file"), "x").folder);
}

TEST(FolderIndex, AFolderThatVanishesIsNoticed) {
    TestWorld world;
    world.write("C:\\Cache\\a", "");
    FolderIndex index(world.host);
    EXPECT_TRUE(index.find(world.at("C:\\Cache"), "a").name);
    world.host.vanish(world.at("C:\\Cache"));
    EXPECT_FALSE(index.find(world.at("C:\\Cache"), "a").folder);
}

TEST(FolderIndex, AFolderThatCannotBeListedKnowsExactNames) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    world.write("C:\\home\\me", "");
    world.host.refuse(Call::List, errors::PermissionDenied, "home");
    FolderIndex index(world.host);
    EXPECT_EQ(index.find(world.at("C:\\home"), "me").name, "me");
    EXPECT_EQ(errorOf([&] { index.find(world.at("C:\\home"), "Me"); }), errors::PermissionDenied);
}

TEST(FolderIndex, AFolderThatCouldNotBeListedForAMomentKnowsAllNamesAfterwards) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    world.write("C:\\home\\me", "");
    StampedHost host(world.host);
    host.refuse(Call::List, errors::TooManyFiles, "home");
    FolderIndex index(host);
    EXPECT_EQ(errorOf([&] { index.find(world.at("C:\\home"), "ME"); }), errors::TooManyFiles);
    host.relent();
    EXPECT_EQ(index.find(world.at("C:\\home"), "ME").name, "me");
    EXPECT_FALSE(index.find(world.at("C:\\home"), "you").name);
}

TEST(FolderIndex, OfSeveralFoldsTheFirstInByteOrderIsTaken) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    for (const char* name : {"abC", "aBc", "Abc"}) world.write(std::string("C:\\x\\") + name, "");
    FolderIndex index(world.host);
    EXPECT_EQ(index.find(world.at("C:\\x"), "ABC").name, "Abc");
    EXPECT_EQ(index.find(world.at("C:\\x"), "aBc").name, "aBc");
}

// A folder so big that the index holds it open.
struct BigFolder : TestWorld {
    BigFolder() : real(makeHost()), index(*real) {
        for (int i = 0; i < 1200; ++i) write("C:\\Game\\Cache\\" + std::to_string(i), "");
    }
    FolderIndex::Finding find(std::string_view name) {
        return index.find(at("C:\\Game\\Cache"), name);
    }
    std::unique_ptr<Host> real;
    FolderIndex index;
};

TEST(FolderIndex, NewNamesInABigFolderAreSeenAtOnce) {
    BigFolder world;
    for (int i = 0; i < 100; ++i) {
        const std::string name = "Name" + std::to_string(i);
        ASSERT_FALSE(world.find(name).name) << i;
        world.write("C:\\Game\\Cache\\" + name, "");
        ASSERT_EQ(world.find("NAME" + std::to_string(i)).name, name);
    }
}

TEST(FolderIndex, ABigFolderThatIsRenamedIsNoticedAtOnce) {
    BigFolder world;
    ASSERT_TRUE(world.find("7").name);
    std::filesystem::rename(world.at("C:\\Game\\Cache"), world.at("C:\\Game\\Old"));
    EXPECT_FALSE(world.find("7").folder);
    world.makeFolder("C:\\Game\\Cache");
    EXPECT_TRUE(world.find("7").folder);
    EXPECT_FALSE(world.find("7").name);
}

TEST(FolderIndex, ARenameAboveABigFolderIsNoticedSoon) {
    BigFolder world;
    ASSERT_TRUE(world.find("7").name);
    std::filesystem::rename(world.at("C:\\Game"), world.at("C:\\Old"));
    int patience = 10'000'000;
    while (world.find("7").folder && --patience > 0) continue;
    EXPECT_GT(patience, 0);
}

}  // namespace
}  // namespace tessaro
