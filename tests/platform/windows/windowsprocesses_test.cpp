#include <gmock/gmock.h>

#include "platform/files/drives.h"
#include "platform/outside/processes.h"
#include "support/testworld.h"
#include "tools/ucc/programs.h"

namespace tessaro {
namespace {

using test::TestWorld;
using testing::ElementsAre;

// The stand-ins for the game's programs, started as the system starts them.
class WindowsProcesses : public testing::Test {
  protected:
    WindowsProcesses() {
        world.makeFolder(R"(C:\Game\System)");
        ucc::installPrograms(world.at(R"(C:\Game)"), executablePath().parent_path());
    }

    std::string inSystem(const char* name) const {
        return world.at(R"(C:\Game\System)").append(name).string();
    }
    void run(const std::string& line, Visibility visibility = Visibility::Hidden) {
        makeProcesses(world.host, hostDrives(), [this] { ++repaints; })->run(line, visibility);
    }
    std::string note() const { return world.read(R"(C:\Game\System\UnrealTournament.cmdline)"); }

    TestWorld world;
    int repaints = 0;
};

TEST_F(WindowsProcesses, ArgumentsArriveAsTheyStand) {
    const std::string game = inSystem("UnrealTournament.exe");
    run(game + " 10.0.0.1?port=7777 \"a  b\" H\xC3\xB6hle-\xD0\xB6-\xE6\x97\xA5 *",
        Visibility::Visible);
    EXPECT_EQ(note(), game + "\n10.0.0.1?port=7777\na  b\nH\xC3\xB6hle-\xD0\xB6-\xE6\x97\xA5\n*\n");
}

TEST_F(WindowsProcesses, TheChildHasEndedWhenTheCallReturns) {
    world.write(R"(C:\Maps\DM-A b.unr)", std::string(5000, 'x'));
    const std::string map = world.at(R"(C:\Maps\DM-A b.unr)").string();
    run(inSystem("UCC.exe") + " compress \"" + map + "\"");
    EXPECT_THAT(world.names(R"(C:\Maps)"), ElementsAre("DM-A b.unr", "DM-A b.unr.uz"));
}

TEST_F(WindowsProcesses, TheChildStartsInTheProgramsFolder) {
    world.write(R"(C:\Game\System\a.u)", "x");
    run(inSystem("ucc.exe") + " compress a.u");
    EXPECT_TRUE(world.exists(R"(C:\Game\System\a.u.uz)"));
}

TEST_F(WindowsProcesses, AProgramThatIsNotThereDoesNothing) {
    run(inSystem("none.exe"));
    run("");
    EXPECT_EQ(repaints, 0);
}

TEST_F(WindowsProcesses, ANulInALineStartsNothing) {
    run(inSystem("UnrealTournament.exe") + std::string("\0x", 2));
    EXPECT_FALSE(world.exists(R"(C:\Game\System\UnrealTournament.cmdline)"));
}

}  // namespace
}  // namespace tessaro
