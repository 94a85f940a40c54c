#include "platform/files/filememory.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include "support/disk.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using test::Call;
using test::errorOf;
using test::FailingHost;
using test::TestWorld;

constexpr std::string_view file = "C:\\game\\user.ini";

// Says of every file it has read that it is the same, until told otherwise.
class QuietHost : public FailingHost {
  public:
    using FailingHost::FailingHost;
    WatchedBytes readWatched(const HostPath& path) override {
        std::string bytes = read(path);
        if (duringRead) duringRead();
        return {std::move(bytes), watches ? std::make_unique<Watch>(quiet) : nullptr};
    }
    bool watches = true;
    bool quiet = true;
    std::function<void()> duringRead;

  private:
    class Watch : public FileWatch {
      public:
        explicit Watch(bool& answer) : answer_(answer) {}
        bool quiet() override { return answer_; }

      private:
        bool& answer_;
    };
};

class FileMemoryTest : public testing::Test {
  protected:
    FileMemoryTest() { world.write(file, "first"); }

    // Twice: what is read once only is not remembered.
    void remember(std::string_view path = file) {
        files.content(path);
        files.content(path);
    }
    int reads() const { return host.count(Call::Read); }

    TestWorld world;
    QuietHost host{world.host};
    Paths paths{host, world.drives};
    Files files{host, paths};
};

TEST_F(FileMemoryTest, AFileThatIsTheSameIsNotReadAgain) {
    remember();
    const int before = reads();
    const auto first = files.content(file);
    EXPECT_EQ(*first, "first");
    EXPECT_EQ(files.content(file), first);
    EXPECT_EQ(files.content("c:\\Game\\..\\game\\user.ini"), first);
    EXPECT_EQ(reads(), before);
}

TEST_F(FileMemoryTest, AFileThatMayBeAnotherIsReadAgain) {
    remember();
    const auto first = files.content(file);
    host.quiet = false;
    world.write(file, "other");
    EXPECT_EQ(*files.content(file), "other");
    EXPECT_EQ(*first, "first");
    world.write(file, "third");
    EXPECT_EQ(*files.content(file), "third");
}

TEST_F(FileMemoryTest, StepsOfOneMomentSeeTheFileThatTheFirstOneSaw) {
    remember();
    {
        const Files::OneMoment moment(files);
        EXPECT_EQ(*files.content(file), "first");
        host.quiet = false;
        world.write(file, "other");
        EXPECT_EQ(*files.content(file), "first");
    }
    EXPECT_EQ(*files.content(file), "other");
}

TEST_F(FileMemoryTest, AMomentBeginsWithItsFirstStep) {
    remember();
    const Files::OneMoment moment(files);
    host.quiet = false;
    world.write(file, "other");
    EXPECT_EQ(*files.content(file), "other");
}

TEST_F(FileMemoryTest, AMomentIsOneOfOneFile) {
    world.write("C:\\game\\other.ini", "second");
    remember();
    const Files::OneMoment moment(files);
    EXPECT_EQ(*files.content(file), "first");
    EXPECT_EQ(*files.content("C:\\game\\other.ini"), "second");
    world.write("C:\\game\\other.ini", "third");
    EXPECT_EQ(*files.content("C:\\game\\other.ini"), "third");
}

TEST_F(FileMemoryTest, WithoutAWatchItIsReadEachTimeAndTheSameBytesAreTheSameObject) {
    host.watches = false;
    remember();
    const auto first = files.content(file);
    const int before = reads();
    EXPECT_EQ(files.content(file), first);
    EXPECT_EQ(reads(), before + 1);
    world.write(file, "other");
    EXPECT_EQ(*files.content(file), "other");
    EXPECT_EQ(reads(), before + 2);
}

TEST_F(FileMemoryTest, EachFileIsItsOwn) {
    world.write("C:\\game\\other.ini", "second");
    remember();
    EXPECT_EQ(*files.content("C:\\game\\other.ini"), "second");
    EXPECT_EQ(*files.content(file), "first");
    EXPECT_EQ(*files.content("C:\\game\\other.ini"), "second");
}

TEST_F(FileMemoryTest, ANameMeansTheFileInTheFolderThatIsCurrentThen) {
    world.write("C:\\other\\user.ini", "second");
    paths.changeFolder("C:\\game");
    remember("user.ini");
    paths.changeFolder("C:\\other");
    EXPECT_EQ(*files.content("user.ini"), "second");
    EXPECT_EQ(*files.content("user.ini"), "second");
}

TEST_F(FileMemoryTest, AFileThatGoesRaisesAndComesAnew) {
    remember();
    host.quiet = false;
    std::filesystem::remove(world.at(file));
    EXPECT_EQ(errorOf([&] { files.content(file); }), errors::FileNotFound);
    EXPECT_EQ(errorOf([&] { files.content(file); }), errors::FileNotFound);
    world.write(file, "first");
    EXPECT_EQ(*files.content(file), "first");
}

TEST_F(FileMemoryTest, AFileThatCannotBeReadRaisesAndComesAnew) {
    remember();
    host.quiet = false;
    host.refuse(Call::Read, errors::DeviceIo);
    EXPECT_EQ(errorOf([&] { files.content(file); }), errors::DeviceIo);
    host.relent();
    host.quiet = true;
    world.write(file, "other");
    EXPECT_EQ(*files.content(file), "other");
}

// The exact name is taken first, so a name that comes between the search and the watch counts.
TEST_F(FileMemoryTest, ANameThatComesWhileTheFileIsReadIsNotMissed) {
    if (!test::hasCases()) GTEST_SKIP() << test::noCases;
    world.write("C:\\Game2\\User.INI", "first");
    files.content("C:\\Game2\\user.ini");
    host.duringRead = [&] { world.write("C:\\Game2\\user.ini", "exact"); };
    EXPECT_EQ(*files.content("C:\\Game2\\user.ini"), "first");
    host.duringRead = {};
    EXPECT_EQ(*files.content("C:\\Game2\\user.ini"), "exact");
}

TEST_F(FileMemoryTest, AFileThatIsTheSameNeedNotBeOpenedToBeTouched) {
    remember();
    files.touch(file);
    files.touch("user.ini");
    EXPECT_EQ(host.count(Call::Touch), 1);  // of the other one, which it makes
    EXPECT_TRUE(world.exists("C:\\user.ini"));
    host.quiet = false;
    files.touch(file);
    EXPECT_EQ(host.count(Call::Touch), 2);
}

TEST_F(FileMemoryTest, AFileThatCannotBeWrittenIsRefusedWhenTouchedThoughItIsKnown) {
    host.protect("user.ini");
    remember();
    EXPECT_EQ(errorOf([&] { files.touch(file); }), errors::PathFileAccess);
    EXPECT_EQ(errorOf([&] { files.touch(file); }), errors::PathFileAccess);
}

TEST_F(FileMemoryTest, ATouchedFileThatWentIsMadeAgain) {
    remember();
    host.quiet = false;
    std::filesystem::remove(world.at(file));
    files.touch(file);
    EXPECT_EQ(world.read(file), "");
    EXPECT_EQ(*files.content(file), "");
}

// On the real system, where it tells of changes.
TEST(FileMemoryOfTheSystem, ManyReadsOfAFileReadItTwice) {
    TestWorld world;
    world.write(file, "first");
    if (!world.host.readWatched(world.at(file)).watch) GTEST_SKIP() << "no watches on this disk";
    const int before = world.host.count(Call::Read);
    for (int i = 0; i < 100; ++i) {
        world.files.touch(file);
        EXPECT_EQ(*world.files.content(file), "first");
    }
    EXPECT_EQ(world.host.count(Call::Read) - before, 2);
    EXPECT_EQ(world.host.count(Call::Touch), 2);
    world.files.replace(file, "other");
    EXPECT_EQ(*world.files.content(file), "other");
}

}  // namespace
}  // namespace tessaro
