#include "platform/files/programfolder.h"

#include <gtest/gtest.h>

#include "support/testworld.h"

namespace tessaro {
namespace {

class ProgramFolder : public ::testing::Test {
  protected:
    ProgramFolder() { world_.makeFolder("C:\\Programs"); }
    HostPath decided() { return programFolder(world_.host, programs_ / "tessaro", own_); }

    test::TestWorld world_;
    const HostPath programs_ = world_.at("C:\\Programs");
    const HostPath own_ = world_.at("C:\\home\\share\\tessaro");
};

TEST_F(ProgramFolder, IsTheOneBesideTheProgramWhereFilesCanBeMadeThere) {
    EXPECT_EQ(decided(), programs_);
    EXPECT_FALSE(world_.exists("C:\\home"));
}

TEST_F(ProgramFolder, IsLeftAsItWas) {
    decided();
    EXPECT_EQ(world_.names("C:\\Programs"), std::vector<std::string>{});
}

TEST_F(ProgramFolder, IsTheUsersOwnWhereNothingCanBeWrittenBesideTheProgram) {
    world_.host.refuse(test::Call::Create, errors::PathFileAccess, "Programs");
    EXPECT_EQ(decided(), own_);
    EXPECT_EQ(world_.names("C:\\home\\share"), std::vector<std::string>{"tessaro"});
}

TEST_F(ProgramFolder, OfTheUserKeepsWhatIsInIt) {
    world_.host.refuse(test::Call::Create, errors::PathFileAccess, "Programs");
    world_.write("C:\\home\\share\\tessaro\\vornx.ini", "[Misc]");
    EXPECT_EQ(decided(), own_);
    EXPECT_EQ(world_.read("C:\\home\\share\\tessaro\\vornx.ini"), "[Misc]");
}

TEST_F(ProgramFolder, IsTheOneBesideWhereTheUserCanHaveNone) {
    world_.host.refuse(test::Call::Create, errors::PathFileAccess);
    EXPECT_EQ(decided(), programs_);
    world_.host.refuse(test::Call::MakeFolder, errors::PathFileAccess);
    EXPECT_EQ(decided(), programs_);
}

TEST_F(ProgramFolder, IsFoundWhileAnotherStartAsks) {
    world_.host.refuse(test::Call::Create, errors::FileAlreadyExists, "Programs");
    EXPECT_EQ(decided(), programs_);
}

}  // namespace
}  // namespace tessaro
