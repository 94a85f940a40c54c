// What a program that is killed in the middle of its work leaves on the disk.

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "players/archivefixture.h"
#include "players/nameeditor.h"

namespace tessaro::test {
namespace {

namespace fs = std::filesystem;
using ::testing::AnyOf;
using ::testing::Eq;

class Killed : public ArchiveFixture {
  protected:
    Killed() {
        archive({"First", "Second"});
        users.rows.pick(2);
    }

    // Does the work in a process that is killed before the change of that number, counted from
    // 1; false if the work has fewer changes, and is done.
    bool killedBefore(int change, const std::function<void()>& work) {
        const pid_t child = ::fork();
        if (child == 0) {
            host.beforeChange = [&] {
                if (--change == 0) ::kill(::getpid(), SIGKILL);
            };
            work();
            ::_exit(0);
        }
        int status = 0;
        EXPECT_EQ(::waitpid(child, &status, 0), child);
        EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
        return WIFSIGNALED(status);
    }
    // Kills the work before each of its changes in turn, and looks at the disk, which is put back
    // each time. Gives how many changes there are.
    int killEverywhere(const std::function<void()>& work, const std::function<void()>& look) {
        const HostPath kept = disk.folder() / "kept";
        fs::copy(disk.driveC(), kept, fs::copy_options::recursive);
        int change = 1;
        while (killedBefore(change, work)) {
            SCOPED_TRACE("before change " + std::to_string(change++));
            look();
            fs::remove_all(disk.driveC());
            fs::copy(kept, disk.driveC(), fs::copy_options::recursive);
        }
        return change - 1;
    }
    std::string readOr(const std::string& file, const std::string& otherwise) {
        return disk.exists(file) ? disk.read(file) : otherwise;
    }

    const std::string oldList = lineOf("First", "userini0.bak") + lineOf("Second", "userini1.bak");
};

TEST_F(Killed, ArchivingLeavesTheOldListOrTheNewOneAndACopyThatIsWholeOrNotThere) {
    const std::string newList = oldList + lineOf("Current", "userini2.bak");
    const int changes = killEverywhere(
        [&] {
            userMan.ArchiveCurrentPlayer(users);
            userMan.SavePlayerList(users.rows);
        },
        [&] {
            EXPECT_THAT(disk.read(list), AnyOf(oldList, newList));
            EXPECT_THAT(readOr(copyOf("userini2.bak"), "none"),
                        AnyOf(Eq("none"), profileOf("Current")));
            EXPECT_EQ(disk.read(userIni), profileOf("Current"));
        });
    EXPECT_GT(changes, 10);
    EXPECT_EQ(disk.read(list), newList);
}

TEST_F(Killed, SwappingLeavesTheOldProfileTheNewOneOrNone) {
    const int changes = killEverywhere(
        [&] { userMan.LoadSelectedPlayer(users); },
        [&] {
            EXPECT_THAT(readOr(userIni, "none"),
                        AnyOf(Eq("none"), profileOf("Current"), profileOf("Second")));
            EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Second"));
            EXPECT_EQ(disk.read(list), oldList);
        });
    EXPECT_GT(changes, 3);
    EXPECT_EQ(disk.read(userIni), profileOf("Second"));
}

TEST_F(Killed, RenamingLeavesWholeFiles) {
    const std::string newList =
        lineOf("First", "userini0.bak") + lineOf("Renamed", "userini1.bak", "255");
    const int changes =
        killEverywhere([&] { NameEditor(program, userMan, users.rows).commit("Renamed"); },
                       [&] {
                           EXPECT_THAT(disk.read(list), AnyOf(oldList, newList));
                           EXPECT_THAT(disk.read(copyOf("userini1.bak")),
                                       AnyOf(profileOf("Second"), profileOf("Renamed")));
                       });
    EXPECT_GT(changes, 6);
    EXPECT_EQ(disk.read(copyOf("userini1.bak")), profileOf("Renamed"));
}

TEST_F(Killed, DeletingLeavesTheOldListOrTheNewOne) {
    UserManager manager(program, userMan, users);
    const int changes = killEverywhere(
        [&] {
            answer(Answer::Yes);
            manager.deleteSelected();
        },
        [&] { EXPECT_THAT(disk.read(list), AnyOf(oldList, lineOf("First", "userini0.bak"))); });
    EXPECT_GT(changes, 3);
    EXPECT_EQ(disk.read(list), lineOf("First", "userini0.bak"));
}

TEST_F(Killed, TheFirstOpeningLeavesAnArchiveThatCanBeOpened) {
    fs::remove_all(disk.at(copies));
    fs::remove(disk.at(list));
    fs::remove(disk.at(userIni));
    users.rows.clear();
    const auto open = [&] { UserManager(program, userMan, users).open(); };
    const int changes = killEverywhere(open, open);
    EXPECT_GT(changes, 5);
    EXPECT_EQ(disk.read(list), "");
    EXPECT_EQ(disk.read(userIni), "[DefaultPlayer]\r\nName=Player\r\n");
}

}  // namespace
}  // namespace tessaro::test
