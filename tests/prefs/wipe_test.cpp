#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "platform/runtime/runtimeerror.h"
#include "prefs/gamefixture.h"
#include "prefs/wipe.h"
#include "support/disk.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

const Message cacheQuestion{"Do you wish to reset your cache and clear its contents?",
                            "Clear All Cache Files?", Buttons::YesNo, Icon::Question};
const Message tempQuestion{"Do you wish to clear all UT Temp files?", "Remove Temp files?",
                           Buttons::YesNo, Icon::Question};

class WipeTest : public GameFixture {
  protected:
    WipeTest() {
        write("cache.ini", "[Cache]\r\n25378BF44584EF794EAC6E86872140C4=a.u\r\n");
        write("25378BF44584EF794EAC6E86872140C4.uxx", "package");
        write("1234.tmp", "half a package");
        write("no extension", "x");
    }
    void write(const std::string& name, const std::string& bytes) {
        test.world.write(cache + "\\" + name, bytes);
    }
    void wipe(Answer cacheAnswer, Answer tempAnswer) {
        test.dialogs.answer(cacheAnswer);
        test.dialogs.answer(tempAnswer);
        ClearCacheAndTempFiles(program);
    }
    Names cached() { return test.world.names(cache); }

    const std::string cache = "C:\\UT\\cache";
};

TEST_F(WipeTest, EmptiesTheCacheAndLeavesAnIndexOfOneLine) {
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(cached(), (Names{"cache.ini"}));
    EXPECT_EQ(test.world.read(cache + "\\cache.ini"), "[Cache]\r\n");
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{cacheQuestion, tempQuestion}));
    EXPECT_TRUE(test.sounds.names.empty());
}

TEST_F(WipeTest, ANameThatCannotBeAskedForDoesNotSaveTheOthers) {
    test.world.host.refuse(Call::Status, errors::PermissionDenied, "1234.tmp");
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(cached(), (Names{"1234.tmp", "cache.ini"}));
}

TEST_F(WipeTest, AsksAboutTheTemporaryFilesAlsoAfterANo) {
    wipe(Answer::No, Answer::No);
    EXPECT_EQ(cached().size(), 4U);
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{cacheQuestion, tempQuestion}));
}

TEST_F(WipeTest, TakesTheTemporaryFilesFromTheGamesOwnFolder) {
    for (const char* name : {"cache1.tmp", "CACHE.TMP", "cache.tmp.bak", "mycache.tmp", "1.tmp"})
        test.world.write(std::string("C:\\UT\\") + name, "x");
    write("cache2.tmp", "x");
    wipe(Answer::No, Answer::Yes);
    EXPECT_EQ(test.world.names("C:\\UT"),
              (Names{"1.tmp", "cache", "cache.tmp.bak", "mycache.tmp"}));
    EXPECT_TRUE(test.world.exists(cache + "\\cache2.tmp"));
}

TEST_F(WipeTest, LeavesFoldersAndWhatIsInThem) {
    write("kept\\inner.uxx", "x");
    test.world.write("C:\\UT\\cachedir.tmp\\inner.tmp", "x");
    wipe(Answer::Yes, Answer::Yes);
    EXPECT_EQ(cached(), (Names{"cache.ini", "kept"}));
    EXPECT_TRUE(test.world.exists(cache + "\\kept\\inner.uxx"));
    EXPECT_TRUE(test.world.exists("C:\\UT\\cachedir.tmp\\inner.tmp"));
}

TEST_F(WipeTest, LeavesHiddenFiles) {
    write(".hidden", "x");
    test.world.host.hide(".hidden");
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(cached(), (Names{".hidden", "cache.ini"}));
}

TEST_F(WipeTest, SkipsWhatCannotBeDeletedAndStillRewritesTheIndex) {
    write("0first.uxx", "x");
    test.world.host.refuse(Call::RemoveFile, errors::PermissionDenied, "0first");
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(cached(), (Names{"0first.uxx", "cache.ini"}));
    EXPECT_EQ(test.world.read(cache + "\\cache.ini"), "[Cache]\r\n");
}

TEST_F(WipeTest, SkipsReadOnlyFiles) {
    write("0first.uxx", "x");
    fs::permissions(test.world.at(cache + "\\0first.uxx"), fs::perms::owner_read);
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(cached(), (Names{"0first.uxx", "cache.ini"}));
}

TEST_F(WipeTest, RewritesAnIndexThatCannotBeDeleted) {
    test.world.host.refuse(Call::RemoveFile, errors::PermissionDenied, "cache.ini");
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(test.world.read(cache + "\\cache.ini"), "[Cache]\r\n");
}

TEST_F(WipeTest, TakesALinkButNotWhatItLeadsTo) {
    if (!hasLinks()) GTEST_SKIP() << noLinks;
    test.world.write("C:\\Mine\\file.txt", "mine");
    test.world.write("C:\\Mine\\folder\\inner.txt", "mine");
    fs::create_symlink(test.world.at("C:\\Mine\\file.txt"), test.world.at(cache + "\\link.uxx"));
    fs::create_symlink(test.world.at("C:\\Mine\\file.txt"), test.world.at("C:\\UT\\cache1.tmp"));
    fs::create_directory_symlink(test.world.at("C:\\Mine\\folder"),
                                 test.world.at(cache + "\\folder"));
    wipe(Answer::Yes, Answer::Yes);
    EXPECT_EQ(cached(), (Names{"cache.ini", "folder"}));
    EXPECT_FALSE(test.world.exists("C:\\UT\\cache1.tmp"));
    EXPECT_EQ(test.world.read("C:\\Mine\\file.txt"), "mine");
    EXPECT_EQ(test.world.read("C:\\Mine\\folder\\inner.txt"), "mine");
}

TEST_F(WipeTest, AnIndexThatIsALinkIsReplacedByAFile) {
    if (!hasLinks()) GTEST_SKIP() << noLinks;
    test.world.write("C:\\Mine\\index.txt", "mine");
    const HostPath index = test.world.at(cache + "\\cache.ini");
    fs::remove(index);
    fs::create_symlink(test.world.at("C:\\Mine\\index.txt"), index);
    wipe(Answer::Yes, Answer::No);
    EXPECT_FALSE(fs::is_symlink(index));
    EXPECT_EQ(test.world.read(cache + "\\cache.ini"), "[Cache]\r\n");
    EXPECT_EQ(test.world.read("C:\\Mine\\index.txt"), "mine");
}

TEST_F(WipeTest, AnIndexThatIsALinkToNowhereMakesNoFileThere) {
    if (!hasLinks()) GTEST_SKIP() << noLinks;
    test.world.makeFolder("C:\\Mine");
    const HostPath index = test.world.at(cache + "\\cache.ini");
    fs::remove(index);
    fs::create_symlink(test.world.at("C:\\Mine\\index.txt"), index);
    wipe(Answer::Yes, Answer::No);
    EXPECT_FALSE(test.world.exists("C:\\Mine\\index.txt"));
    EXPECT_EQ(test.world.read(cache + "\\cache.ini"), "[Cache]\r\n");
}

TEST_F(WipeTest, DoesNotWriteThroughALinkThatCannotBeDeleted) {
    if (!hasLinks()) GTEST_SKIP() << noLinks;
    test.world.write("C:\\Mine\\index.txt", "mine");
    const HostPath index = test.world.at(cache + "\\cache.ini");
    fs::remove(index);
    fs::create_symlink(test.world.at("C:\\Mine\\index.txt"), index);
    test.world.host.refuse(Call::RemoveFile, errors::PermissionDenied, "cache.ini");
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(test.world.read("C:\\Mine\\index.txt"), "mine");
}

TEST_F(WipeTest, MakesTheIndexWhereThereWasNone) {
    fs::remove(test.world.at(cache + "\\cache.ini"));
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(test.world.read(cache + "\\cache.ini"), "[Cache]\r\n");
}

TEST_F(WipeTest, RunsWithAWrongCacheFolderToo) {
    program.gamePaths.UTCachePath = "C:\\Nowhere\\cache";
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(test.dialogs.messages.size(), 2U);
    EXPECT_FALSE(test.world.exists("C:\\Nowhere"));
    EXPECT_EQ(cached().size(), 4U);
}

TEST_F(WipeTest, RefusesWhereTheCurrentFolderCannotBeListed) {
    test.world.host.refuse(Call::List, errors::PathNotFound);
    test.dialogs.answer(Answer::Yes);
    test.dialogs.answer(Answer::Ok);
    test.dialogs.answer(Answer::No);
    ClearCacheAndTempFiles(program);
    const Message refusal{"UT Cache Folder is invalid or missing, check the path and try again",
                          "Error Clearing Cache", Buttons::Ok, Icon::Stop};
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{cacheQuestion, refusal, tempQuestion}));
    EXPECT_EQ(cached().size(), 4U);
}

TEST_F(WipeTest, RefusesTheTemporaryFilesWithoutTheGamesFolder) {
    program.gamePaths.UTPath = "C:\\Nowhere";
    test.dialogs.answer(Answer::No);
    test.dialogs.answer(Answer::Yes);
    test.dialogs.answer(Answer::Ok);
    ClearCacheAndTempFiles(program);
    const Message refusal{
        "One or more paths were fount to be invalid, Please Check your installation of UT",
        "Error with paths", Buttons::Ok, Icon::Stop};
    EXPECT_EQ(test.dialogs.messages, (std::vector<Message>{cacheQuestion, tempQuestion, refusal}));
}

TEST_F(WipeTest, OfAnIndexThatSomeoneReadsUnderTheSameNumberOnlyTheClosingComesTrue) {
    program.table.openInput(1, cache + "\\cache.ini");
    wipe(Answer::Yes, Answer::No);
    EXPECT_EQ(cached(), Names{});
    EXPECT_EQ(errorOf([&] { program.table.endOfFile(1); }), errors::BadFileNumber);
}

}  // namespace
}  // namespace tessaro::test
