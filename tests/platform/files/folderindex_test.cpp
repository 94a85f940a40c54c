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

TEST(FolderIndex, TheExactNameIsTakenThoughTheStampHidesThatItCame) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    TestWorld world;
    world.write("C:\\Cache\\A", "");
    StampedHost host(world.host);
    host.stamp = now() + 3'600'000'000'001;
    FolderIndex index(host);
    EXPECT_EQ(index.find(world.at("C:\\Cache"), "a").name, "A");
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

// A folder that is asked so often that the index holds it open.
struct BusyFolder : TestWorld {
    BusyFolder() : real(makeHost()), index(*real) {
        write("C:\\Game\\Cache\\7", "");
        for (int i = 0; i < 1000; ++i) find("7");
    }
    FolderIndex::Finding find(std::string_view name) {
        return index.find(at("C:\\Game\\Cache"), name);
    }
    std::unique_ptr<Host> real;
    FolderIndex index;
};

TEST(FolderIndex, NewNamesInABusyFolderAreSeenAtOnce) {
    BusyFolder world;
    for (int i = 0; i < 100; ++i) {
        const std::string name = "Name" + std::to_string(i);
        ASSERT_FALSE(world.find(name).name) << i;
        world.write("C:\\Game\\Cache\\" + name, "");
        ASSERT_EQ(world.find("NAME" + std::to_string(i)).name, name);
    }
}

TEST(FolderIndex, ABusyFolderThatIsRenamedIsNoticedAtOnce) {
    BusyFolder world;
    ASSERT_TRUE(world.find("7").name);
    std::filesystem::rename(world.at("C:\\Game\\Cache"), world.at("C:\\Game\\Old"));
    EXPECT_FALSE(world.find("7").folder);
    world.makeFolder("C:\\Game\\Cache");
    EXPECT_TRUE(world.find("7").folder);
    EXPECT_FALSE(world.find("7").name);
}

TEST(FolderIndex, ARenameAboveABusyFolderIsNoticedSoon) {
    BusyFolder world;
    ASSERT_TRUE(world.find("7").name);
    std::filesystem::rename(world.at("C:\\Game"), world.at("C:\\Old"));
    int patience = 10'000'000;
    while (world.find("7").folder && --patience > 0) continue;
    EXPECT_GT(patience, 0);
}

TEST(FolderIndex, AFolderThatIsAskedOftenIsHeld) {
    class HoldingHost : public StampedHost {
      public:
        using StampedHost::StampedHost;
        std::unique_ptr<HeldFolder> hold(const HostPath& folder) override {
            held.push_back(folder);
            return nullptr;
        }
        std::vector<HostPath> held;
    };
    TestWorld world;
    world.write("C:\\Cache\\a", "");
    HoldingHost host(world.host);
    FolderIndex index(host);
    const auto ask = [&](int times) {
        for (int i = 0; i < times; ++i) index.find(world.at("C:\\Cache"), "a");
    };
    ask(99);
    EXPECT_TRUE(host.held.empty());
    ask(1);
    EXPECT_EQ(host.held, std::vector{world.at("C:\\Cache")});
}

// A folder that never seems to change, asked many questions.
struct ManyQuestions : TestWorld {
    ManyQuestions() : stamped(host), index(stamped) {
        write("C:\\Maps\\a", "");
        index.setManyQuestions(true);
    }
    FolderIndex::Finding find(std::string_view name) { return index.find(at("C:\\Maps"), name); }
    StampedHost stamped;
    FolderIndex index;
};

TEST(FolderIndex, AmidManyQuestionsALookServesForSome) {
    ManyQuestions world;
    for (int i = 0; i < 1000; ++i) EXPECT_FALSE(world.find(std::to_string(i)).name);
    EXPECT_LT(world.stamped.count(Call::Status), 500);
}

TEST(FolderIndex, AmidManyQuestionsWhatIsAddedIsKnownWithoutAnotherListing) {
    ManyQuestions world;
    for (int i = 0; i < 100; ++i) {
        const std::string name = "Map" + std::to_string(i);
        EXPECT_FALSE(world.find(name).name);
        world.write("C:\\Maps\\" + name, "");
        world.index.add(world.at("C:\\Maps\\" + name));
        world.index.add(world.at("C:\\Maps\\" + name));
    }
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(world.find("MAP" + std::to_string(i)).name, "Map" + std::to_string(i));
    EXPECT_EQ(world.find("A").name, "a");
    EXPECT_EQ(world.stamped.count(Call::List), 1);
}

TEST(FolderIndex, WithoutManyQuestionsAnAddedNameHasTheFolderListedAnew) {
    ManyQuestions world;
    world.index.setManyQuestions(false);
    EXPECT_FALSE(world.find("mine").name);
    world.write("C:\\Maps\\Mine", "");
    world.write("C:\\Maps\\Theirs", "");
    world.index.add(world.at("C:\\Maps\\Mine"));
    EXPECT_EQ(world.find("mine").name, "Mine");
    EXPECT_EQ(world.find("theirs").name, "Theirs");
}

TEST(FolderIndex, ManyQuestionsBeginWithALookAtTheFolder) {
    ManyQuestions world;
    for (int i = 0; i < 100; ++i) {
        const std::string name = "Map" + std::to_string(i);
        EXPECT_FALSE(world.find(name).name);
        world.write("C:\\Maps\\" + name, "");
        world.stamped.stamp += 1;
        world.index.setManyQuestions(true);
        EXPECT_EQ(world.find("MAP" + std::to_string(i)).name, name);
    }
}

TEST(FolderIndex, WhatOthersAddAmidManyQuestionsIsSeenSoon) {
    TestWorld world;
    world.makeFolder("C:\\Maps");
    FolderIndex index(world.host);
    index.setManyQuestions(true);
    EXPECT_FALSE(index.find(world.at("C:\\Maps"), "theirs").name);
    world.write("C:\\Maps\\Theirs", "");
    int patience = 10'000'000;
    while (!index.find(world.at("C:\\Maps"), "theirs").name && --patience > 0) continue;
    EXPECT_GT(patience, 0);
}

}  // namespace
}  // namespace tessaro
