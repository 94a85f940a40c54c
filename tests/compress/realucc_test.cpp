#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

#include "compress/compressbatch.h"
#include "compress/decompressbatch.h"
#include "compress/packer.h"
#include "support/programfolder.h"
#include "tools/ucc/programs.h"

namespace tessaro {
namespace {

using test::destination;
using test::packerFolder;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::HasSubstr;
using ::testing::SizeIs;

// The batches with real processes of the stand-in for the game's packer.
class RealUcc : public ::testing::Test {
  protected:
    RealUcc() {
        ucc::installPrograms(disk_.at(R"(C:\UnrealTournament)"), executablePath().parent_path());
        world_.processes.child = [this](const std::string& line) {
            processes_->run(line, Visibility::Hidden);
        };
    }

    test::TestProgram world_;
    test::Packer packer_{world_};
    test::TestWorld& disk_ = world_.world;
    std::function<void()> whileRunning_ = [] {};
    std::unique_ptr<Processes> processes_ =
        makeProcesses(disk_.host, disk_.drives, [this] { whileRunning_(); });
    test::RecordingBatch form_;
    CompressBatch compression_{world_.program, form_, Ucc(world_.program, test::anotherSystem)};
    DecompressBatch decompression_{world_.program, form_, Ucc(world_.program, test::anotherSystem)};

    // Packages to compress, each with bytes of its own.
    void listMaps(const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            disk_.write("C:\\Maps\\" + name, bytesOf(name));
            packer_.fillBatch(compression_.ListView1, {"C:\\Maps\\" + name});
        }
    }
    static std::string bytesOf(const std::string& name) {
        std::string bytes;
        for (int i = 0; i < 100; ++i) bytes += name + std::to_string(i);
        return bytes;
    }
    void listPacked(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            packer_.fillBatch(decompression_.ListView1, {"C:\\Out\\" + name + ".uz"});
        world_.program.DecompressDest = R"(C:\Back)";
        disk_.makeFolder(R"(C:\Back)");
    }
    template <class Batch>
    void run(Batch& batch) {
        world_.dialogs.answer(Answer::No);
        batch.run();
    }
    // Compresses in good order, so that there is something to decompress.
    void pack(const std::vector<std::string>& names) {
        listMaps(names);
        run(compression_);
        world_.dialogs.messages.clear();
        form_.seen.clear();
    }
    // What every batch over these maps has to leave alone.
    void expectSourcesUntouched(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            EXPECT_EQ(disk_.read("C:\\Maps\\" + name), bytesOf(name));
    }
    static auto reports(const std::string& file) {
        return Contains(Field(&Message::text, HasSubstr("Error moving " + file + " ")));
    }
};

std::vector<std::string> manyNames() {
    std::vector<std::string> names;
    for (int i = 100; i < 300; ++i) names.push_back("CTF-Map" + std::to_string(i) + ".unr");
    return names;
}

TEST_F(RealUcc, ANameWithAColonGoesThereAndBack) {
    const std::string name = "x:y.unr";
    const std::string named = "x\uF03Ay.unr";
    disk_.write("C:\\Maps\\" + name, bytesOf(name));
    packer_.fillBatch(compression_.ListView1, {"C:\\Maps\\" + named});
    run(compression_);
    EXPECT_THAT(disk_.names("C:\\Maps"), ElementsAre(name));
    EXPECT_THAT(disk_.names("C:\\Out"), ElementsAre(name + ".uz"));
    listPacked({named});
    run(decompression_);
    EXPECT_EQ(disk_.read("C:\\Back\\" + name), bytesOf(name));
    EXPECT_FALSE(disk_.exists("C:\\UnrealTournament\\System\\" + name));
}

using SlowRealUcc = RealUcc;
TEST_F(SlowRealUcc, TwoHundredFilesGoThereAndBack) {
    const std::vector<std::string> names = manyNames();
    pack(names);
    expectSourcesUntouched(names);
    EXPECT_EQ(disk_.names(R"(C:\Maps)"), names);
    EXPECT_THAT(disk_.names(destination), SizeIs(200));
    listPacked(names);
    run(decompression_);
    EXPECT_EQ(disk_.names(R"(C:\Back)"), names);
    for (const std::string& name : names) EXPECT_EQ(disk_.read("C:\\Back\\" + name), bytesOf(name));
    EXPECT_THAT(disk_.names(destination), SizeIs(200));
    EXPECT_THAT(disk_.names(packerFolder), ElementsAre("UCC.exe", "UnrealTournament.exe"));
    EXPECT_EQ(decompression_.ListView2.count(), 200u);
}

TEST_F(RealUcc, UnusualNamesGoThereAndBack) {
    std::vector<std::string> names{"Two Words.unr", "DM-[Old](2).unr", "Liandri's.unr",
                                   "100%.unr",      "Ünïcödé-жук.unr", "dash - and $HOME & co.u"};
    std::sort(names.begin(), names.end());
    pack(names);
    listPacked(names);
    run(decompression_);
    EXPECT_EQ(disk_.names(R"(C:\Back)"), names);
    for (const std::string& name : names) EXPECT_EQ(disk_.read("C:\\Back\\" + name), bytesOf(name));
}

TEST_F(RealUcc, NamesThatLookLikePatternsTakeNoOtherFileWithThem) {
    const HostPath maps = disk_.driveC() / "Maps";
    const std::vector<std::string> names{"a\".unr", "a*.unr", "a?.unr"};
    test::TestWorld::writeHost(maps / "ab.unr.uz", "another's");
    for (const std::string& name : names) {
        test::TestWorld::writeHost(maps / name, bytesOf(name));
        packer_.fillBatch(compression_.ListView1, {world_.program.paths.toGame(maps / name)});
    }
    run(compression_);
    EXPECT_THAT(world_.dialogs.messages, SizeIs(1));
    EXPECT_EQ(test::TestWorld::readHost(maps / "ab.unr.uz"), "another's");
    for (const std::string& name : names) {
        EXPECT_EQ(test::TestWorld::readHost(maps / name), bytesOf(name));
        EXPECT_TRUE(std::filesystem::exists(disk_.at(destination) / (name + ".uz"))) << name;
        EXPECT_FALSE(std::filesystem::exists(maps / (name + ".uz"))) << name;
    }
}

// Ways of the packer to leave nothing where it should.
class UccThatFails : public RealUcc, public ::testing::WithParamInterface<const char*> {
  protected:
    void misbehave() { manner_.emplace("TESSARO_UCC", GetParam()); }

  private:
    std::optional<test::Environment> manner_;
};

TEST_P(UccThatFails, IsReportedForEachFileByNameAndTheSourcesStay) {
    listMaps({"a.unr", "b.unr", "c.unr"});
    disk_.write(R"(C:\Out\a.unr.uz)", "keeps the first file from being the failing one");
    misbehave();
    world_.dialogs.answer(Answer::Ok);
    world_.dialogs.answer(Answer::Ok);
    run(compression_);
    EXPECT_THAT(world_.dialogs.messages,
                AllOf(SizeIs(3), reports(R"(C:\Maps\b.unr)"), reports(R"(C:\Maps\c.unr)")));
    expectSourcesUntouched({"a.unr", "b.unr", "c.unr"});
    EXPECT_THAT(disk_.names(destination), ElementsAre("a.unr.uz"));
}

TEST_P(UccThatFails, EndsTheRunAtTheFirstFile) {
    listMaps({"a.unr", "b.unr"});
    misbehave();
    world_.dialogs.answer(Answer::Ok);
    EXPECT_EQ(test::errorOf([&] { compression_.run(); }), errors::FileNotFound);
    expectSourcesUntouched({"a.unr", "b.unr"});
}

TEST_P(UccThatFails, IsReportedForEachCompressedFileAndTheSourcesStay) {
    pack({"a.unr", "b.unr"});
    const std::string before = disk_.read(R"(C:\Out\a.unr.uz)");
    listPacked({"a.unr", "b.unr"});
    misbehave();
    world_.dialogs.answer(Answer::Ok);
    world_.dialogs.answer(Answer::Ok);
    run(decompression_);
    EXPECT_THAT(world_.dialogs.messages, AllOf(SizeIs(3), reports("a.unr"), reports("b.unr")));
    EXPECT_EQ(disk_.read(R"(C:\Out\a.unr.uz)"), before);
    EXPECT_THAT(disk_.names(R"(C:\Back)"), SizeIs(0));
}

INSTANTIATE_TEST_SUITE_P(Manners, UccThatFails, ::testing::Values("silent", "crash", "othername"),
                         [](const auto& manner) { return std::string(manner.param); });

// Ways of the packer that only look like trouble.
class UccWithManners : public RealUcc, public ::testing::WithParamInterface<const char*> {};

TEST_P(UccWithManners, DoesItsWorkInBothDirections) {
    const test::Environment manner("TESSARO_UCC", GetParam());
    pack({"a.unr", "b.unr"});
    listPacked({"a.unr", "b.unr"});
    run(decompression_);
    EXPECT_EQ(disk_.read(R"(C:\Back\a.unr)"), bytesOf("a.unr"));
    EXPECT_EQ(disk_.read(R"(C:\Back\b.unr)"), bytesOf("b.unr"));
}

INSTANTIATE_TEST_SUITE_P(Manners, UccWithManners, ::testing::Values("utf16", "stdin"),
                         [](const auto& manner) { return std::string(manner.param); });

TEST_F(RealUcc, ABatchWaitsForASlowPackerAndTheScreenIsServedMeanwhile) {
    const test::Environment manner("TESSARO_UCC", "slow");
    const test::Environment release("TESSARO_UCC_RELEASE", disk_.at(R"(C:\release)"));
    std::vector<std::string> seenMeanwhile;
    whileRunning_ = [&] {
        seenMeanwhile = form_.seen;
        disk_.write(R"(C:\release)", "");
    };
    listMaps({"a.unr"});
    run(compression_);
    EXPECT_THAT(seenMeanwhile, ElementsAre("running"));
    EXPECT_TRUE(disk_.exists(R"(C:\Out\a.unr.uz)"));
}

TEST_F(RealUcc, AMissingPackerIsReportedForEachFile) {
    pack({"a.unr", "b.unr"});
    listPacked({"a.unr", "b.unr"});
    std::filesystem::remove(disk_.at(packerFolder) / "UCC.exe");
    world_.dialogs.answer(Answer::Ok);
    world_.dialogs.answer(Answer::Ok);
    run(decompression_);
    EXPECT_THAT(world_.dialogs.messages, AllOf(SizeIs(3), reports("a.unr"), reports("b.unr")));
}

TEST_F(RealUcc, ADamagedFileIsReportedByName) {
    disk_.write(R"(C:\Out\a.unr.uz)", "no package at all");
    listPacked({"a.unr"});
    world_.dialogs.answer(Answer::Ok);
    run(decompression_);
    EXPECT_THAT(world_.dialogs.messages, AllOf(SizeIs(2), reports("a.unr")));
}

TEST_F(RealUcc, ARenamedFileIsUnpackedUnderItsStoredNameAndNotFound) {
    pack({"a.unr"});
    std::filesystem::rename(disk_.at(R"(C:\Out\a.unr.uz)"), disk_.at(R"(C:\Out\other.unr.uz)"));
    listPacked({"other.unr"});
    world_.dialogs.answer(Answer::Ok);
    run(decompression_);
    EXPECT_THAT(world_.dialogs.messages, AllOf(SizeIs(2), reports("other.unr")));
    EXPECT_EQ(disk_.read(packerFolder + std::string(R"(\a.unr)")), bytesOf("a.unr"));
}

}  // namespace
}  // namespace tessaro
