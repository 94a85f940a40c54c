// What a replacement keeps of the old file, and what it does where the system refuses.

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>
#include <functional>
#include <utility>

#include "platform/files/wholefile.h"
#include "support/forkedchild.h"
#include "support/refusedcalls.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::errorOf;
using test::ForkedChild;
using test::notHere;
using test::refuseCall;
using test::TemporaryFolder;
using test::TestWorld;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

constexpr const char* accessList = "system.posix_acl_access";
constexpr const char* folderList = "system.posix_acl_default";

struct Entry {
    std::uint16_t tag;
    std::uint16_t permissions;
    std::uint32_t who = ~std::uint32_t{0};
};
constexpr std::uint16_t owner = 0x01;
constexpr std::uint16_t aUser = 0x02;
constexpr std::uint16_t group = 0x04;
constexpr std::uint16_t mask = 0x10;
constexpr std::uint16_t others = 0x20;

// An access list as the system takes it: version 2, then the entries in the order of their tags.
std::string listOf(std::initializer_list<Entry> entries) {
    constexpr std::uint32_t version = 2;
    std::string bytes(sizeof version, '\0');
    std::memcpy(bytes.data(), &version, sizeof version);
    for (const Entry& entry : entries)
        bytes.append(reinterpret_cast<const char*>(&entry), sizeof entry);
    return bytes;
}

struct Place {
    Place() {
        fs::permissions(folder.path(), fs::perms(0777));
        ::umask(022);
    }
    HostPath at(const char* name) const { return folder.path() / name; }
    HostPath write(const char* name, mode_t mode, std::string_view bytes = "old") const {
        TestWorld::writeHost(at(name), bytes);
        ::chmod(at(name).c_str(), mode);
        return at(name);
    }
    static struct stat statusOf(const HostPath& file) {
        struct stat info = {};
        ::stat(file.c_str(), &info);
        return info;
    }
    static mode_t modeOf(const HostPath& file) { return statusOf(file).st_mode & 0777U; }
    // "none" if there is no such attribute.
    static std::string attribute(const HostPath& file, const char* name) {
        char value[1000];
        const ssize_t size = ::getxattr(file.c_str(), name, value, sizeof value);
        return size == -1 ? "none" : std::string(value, static_cast<std::size_t>(size));
    }
    static bool setAttribute(const HostPath& file, const char* name, const std::string& value) {
        return ::setxattr(file.c_str(), name, value.data(), value.size(), 0) == 0;
    }
    std::vector<std::string> names() const { return TestWorld::namesIn(folder.path()); }
    // What a child that is told `work` ends with, a program of ours of its own.
    static int inAChild(const std::function<int(Host&)>& work) {
        return ForkedChild([&] { return work(*makeHost()); }).exitCode();
    }

    TemporaryFolder folder;
    std::unique_ptr<Host> host = makeHost();
};

TEST(Likeness, AReplacementGivesTheGroupNoRightThroughTheListsMask) {
    const Place place;
    const HostPath file = place.write("file", 0600);
    const std::string list =
        listOf({{owner, 6}, {aUser, 6, 1234}, {group, 4}, {mask, 6}, {others, 0}});
    if (!Place::setAttribute(file, accessList, list)) GTEST_SKIP() << "no access lists here";
    ASSERT_EQ(Place::modeOf(file), 0660U);
    replaceFile(*place.host, file, "new");
    EXPECT_EQ(TestWorld::readHost(file), "new");
    EXPECT_EQ(Place::attribute(file, accessList), list);
    EXPECT_EQ(Place::modeOf(file), 0660U);
    replaceByCopy(*place.host, file, place.at("copy"));
    EXPECT_EQ(Place::attribute(place.at("copy"), accessList), "none");
    EXPECT_EQ(Place::modeOf(place.at("copy")), 0600U);
}

TEST(Likeness, AFoldersListOpensNoFileThatHadNoneButGivesNewOnesTheirs) {
    const Place place;
    const HostPath file = place.write("file", 0660);
    const HostPath from = place.write("from", 0664);
    const std::string list =
        listOf({{owner, 7}, {aUser, 7, 1234}, {group, 0}, {mask, 7}, {others, 0}});
    if (!Place::setAttribute(place.folder.path(), folderList, list))
        GTEST_SKIP() << "no access lists here";
    auto inode = Place::statusOf(file).st_ino;
    const std::function<void()> replacements[] = {
        [&] { replaceFile(*place.host, file, "new"); },
        [&] { replaceByCopy(*place.host, from, file); },
    };
    for (const auto& replacement : replacements) {
        replacement();
        EXPECT_EQ(Place::attribute(file, accessList), "none");
        EXPECT_EQ(Place::modeOf(file), 0660U);
        EXPECT_NE(Place::statusOf(file).st_ino, std::exchange(inode, Place::statusOf(file).st_ino));
    }
    replaceFile(*place.host, place.at("new"), "new");
    EXPECT_NE(Place::attribute(place.at("new"), accessList), "none");
    replaceByCopy(*place.host, from, place.at("copy"));
    EXPECT_NE(Place::attribute(place.at("copy"), accessList), "none");
}

TEST(Likeness, AListThatANewFileCannotHaveIsKeptByTheOldOne) {
    for (const std::uint16_t bound : {std::uint16_t{6}, std::uint16_t{0}}) {
        const Place place;
        const HostPath file = place.write("file", 0600);
        const std::string list =
            listOf({{owner, 6}, {aUser, 6, 1234}, {group, 4}, {mask, bound}, {others, 0}});
        if (!Place::setAttribute(file, accessList, list)) GTEST_SKIP() << "no access lists here";
        const int result = Place::inAChild([&](Host& host) {
            if (!refuseCall(SYS_fsetxattr, ENOTSUP)) return notHere;
            host.create(place.at("like it"), file)->close();
            replaceFile(host, file, "new");
            return 0;
        });
        if (result == notHere) GTEST_SKIP() << "calls cannot be refused here";
        EXPECT_EQ(result, 0);
        EXPECT_EQ(TestWorld::readHost(file), "new");
        EXPECT_EQ(Place::attribute(file, accessList), list);
        EXPECT_EQ(Place::modeOf(place.at("like it")), 0600U);
    }
}

TEST(Likeness, AttributesAreKept) {
    const Place place;
    const HostPath file = place.write("file", 0644);
    if (!Place::setAttribute(file, "user.test", std::string("a\0b", 3)) ||
        !Place::setAttribute(file, "user.empty", ""))
        GTEST_SKIP() << "no attributes here";
    replaceFile(*place.host, file, "new");
    EXPECT_EQ(Place::attribute(file, "user.test"), std::string("a\0b", 3));
    EXPECT_EQ(Place::attribute(file, "user.empty"), "");
    replaceByCopy(*place.host, place.write("from", 0644), file);
    EXPECT_EQ(Place::attribute(file, "user.test"), std::string("a\0b", 3));
}

TEST(Likeness, AFileOfSomebodyElseStaysTheirs) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    const Place place;
    const HostPath file = place.write("file", 0666);
    const HostPath copied = place.write("copied", 0666);
    for (const HostPath& each : {file, copied}) ASSERT_EQ(::chown(each.c_str(), 1234, 5678), 0);
    const auto inode = Place::statusOf(file).st_ino;
    EXPECT_EQ(Place::inAChild([&](Host& host) {
                  if (!test::becomeOrdinaryUser()) return notHere;
                  replaceFile(host, file, "new");
                  replaceByCopy(host, file, copied);
                  return 0;
              }),
              0);
    for (const HostPath& each : {file, copied}) {
        EXPECT_EQ(TestWorld::readHost(each), "new");
        EXPECT_EQ(Place::statusOf(each).st_uid, 1234U);
        EXPECT_EQ(Place::statusOf(each).st_gid, 5678U);
    }
    EXPECT_EQ(Place::statusOf(file).st_ino, inode);
    EXPECT_THAT(place.names(), ElementsAre("copied", "file"));
}

TEST(Likeness, ACopyOfSomebodyElsesFileGivesOurGroupNoMoreThanEverybody) {
    if (::geteuid() != 0) GTEST_SKIP() << "only root may give files away";
    const Place place;
    const HostPath from = place.write("from", 0664);
    ASSERT_EQ(::chown(from.c_str(), 1234, 5678), 0);
    EXPECT_EQ(Place::inAChild([&](Host& host) {
                  if (!test::becomeOrdinaryUser()) return notHere;
                  replaceByCopy(host, from, place.at("copy"));
                  return 0;
              }),
              0);
    EXPECT_EQ(TestWorld::readHost(place.at("copy")), "old");
    EXPECT_EQ(Place::modeOf(place.at("copy")), 0644U);
}

// As on a disk that is mounted for everybody.
TEST(Likeness, PermissionsAndOwnersThatCannotBeSetAreNoFailure) {
    const Place place;
    const HostPath file = place.write("file", 0644);
    const HostPath from = place.write("from", 0644, "from");
    const HostPath secret = place.write("secret", 0600);
    const int result = Place::inAChild([&](Host& host) {
        for (const long call : {SYS_fchmod, SYS_fchown, SYS_fsetxattr, SYS_fremovexattr}) {
            if (!refuseCall(call, EPERM)) return notHere;
        }
        replaceFile(host, file, "new");
        replaceByCopy(host, from, place.at("copy"));
        replaceByCopy(host, secret, place.at("copied secret"));
        host.create(place.at("new secret"), secret)->close();
        replaceFile(host, place.at("fresh"), "fresh");
        changeFile(host, file,
                   [](std::string_view bytes) { return std::optional(std::string(bytes) + "er"); });
        return 0;
    });
    if (result == notHere) GTEST_SKIP() << "calls cannot be refused here";
    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestWorld::readHost(file), "newer");
    EXPECT_EQ(TestWorld::readHost(place.at("copy")), "from");
    EXPECT_EQ(TestWorld::readHost(place.at("fresh")), "fresh");
    EXPECT_EQ(Place::modeOf(file), 0644U);
    EXPECT_EQ(Place::modeOf(place.at("copy")) & ~0644U, 0U);
    EXPECT_EQ(Place::modeOf(place.at("copied secret")), 0600U);
    EXPECT_EQ(Place::modeOf(place.at("new secret")), 0600U);
    EXPECT_THAT(place.names(), ElementsAre("copied secret", "copy", "file", "fresh", "from",
                                           "new secret", "secret"));
}

TEST(Likeness, AFileInAFolderThatMayNotBeWrittenIsWrittenOver) {
    const Place place;
    fs::create_directory(place.at("closed"));
    const HostPath file = place.write("closed/file", 0666);
    fs::permissions(place.at("closed"), fs::perms(0555));
    EXPECT_EQ(Place::inAChild([&](Host& host) {
                  if (!test::becomeOrdinaryUser()) return notHere;
                  changeFile(host, file, [](std::string_view bytes) {
                      return std::optional(std::string(bytes) + " and new");
                  });
                  return 0;
              }),
              0);
    EXPECT_EQ(TestWorld::readHost(file), "old and new");
    EXPECT_EQ(Place::modeOf(file), 0666U);
    fs::permissions(place.at("closed"), fs::perms(0755));
}

// Whether this process got a view of the disks of its own.
bool hasOwnMounts() {
    return (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
           ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

TEST(Likeness, AFileThatIsMountedByItselfIsWrittenOver) {
    const Place place;
    const HostPath file = place.write("file", 0644);
    const HostPath mounted = place.write("mounted", 0644);
    const int result = Place::inAChild([&](Host& host) {
        if (!hasOwnMounts() ||
            ::mount(file.c_str(), mounted.c_str(), nullptr, MS_BIND, nullptr) != 0)
            return notHere;
        replaceFile(host, mounted, "new");
        return TestWorld::readHost(mounted) == "new" ? 0 : 1;
    });
    if (result == notHere) GTEST_SKIP() << "nothing can be mounted here";
    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestWorld::readHost(file), "new");
    EXPECT_THAT(place.names(), ElementsAre("file", "mounted"));
}

TEST(Likeness, ADiskThatCannotTakeTheBytesKeepsTheOldFile) {
    const Place place;
    const HostPath file = place.write("file", 0644);
    const HostPath from = place.write("from", 0644, "from");
    const int result = Place::inAChild([&](Host& host) {
        if (!refuseCall(SYS_fsync, EIO)) return notHere;
        const int replaced = errorOf([&] { replaceFile(host, file, "new"); });
        const int copied = errorOf([&] { replaceByCopy(host, from, file); });
        const int fresh = errorOf([&] { replaceByCopy(host, from, place.at("copy")); });
        const int over = errorOf([&] { host.overwrite(from)->close(); });
        const bool told = replaced == errors::DeviceIo && copied == replaced && fresh == replaced;
        return told && over == errors::DeviceIo ? 0 : 1;
    });
    if (result == notHere) GTEST_SKIP() << "calls cannot be refused here";
    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestWorld::readHost(file), "old");
    EXPECT_THAT(place.names(), ElementsAre("file", "from"));
}

TEST(Likeness, ALimitOnTheSizeOfFilesIsAFullDisk) {
    const Place place;
    const HostPath file = place.write("file", 0644);
    const HostPath from = place.write("from", 0644, std::string(5000, 'f'));
    EXPECT_EQ(Place::inAChild([&](Host&) {
                  std::signal(SIGXFSZ, SIG_DFL);
                  const auto host = makeHost();
                  const rlimit limit = {1000, 1000};
                  if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return notHere;
                  const std::string bytes(5000, 'n');
                  const int replaced = errorOf([&] { replaceFile(*host, file, bytes); });
                  const int copied = errorOf([&] { replaceByCopy(*host, from, file); });
                  return replaced == errors::DiskFull && copied == errors::DiskFull ? 0 : 1;
              }),
              0);
    EXPECT_EQ(TestWorld::readHost(file), "old");
    EXPECT_THAT(place.names(), ElementsAre("file", "from"));
}

// What a child leaves that is killed while it writes "new" to a file.
std::vector<std::string> leftByOneKilledWriting(const Place& place, bool nameless) {
    const HostPath file = place.write("file", 0644);
    Place::inAChild([&](Host& host) {
        if (!nameless && !refuseCall(SYS_openat, EOPNOTSUPP, 2, O_TMPFILE)) return notHere;
        const auto writer = host.create(place.at("new"), file);
        writer->write("part");
        return ::raise(SIGKILL);
    });
    return place.names();
}

TEST(Likeness, AFileThatIsNotWholeHasNoName) {
    const Place place;
    EXPECT_THAT(leftByOneKilledWriting(place, true), ElementsAre("file"));
}

TEST(Likeness, WhereEveryFileNeedsANameFilesAreReplacedAllTheSame) {
    const Place place;
    const HostPath file = place.write("file", 0640);
    const int result = Place::inAChild([&](Host& host) {
        if (!refuseCall(SYS_openat, EOPNOTSUPP, 2, O_TMPFILE)) return notHere;
        host.create(place.at("dropped"), {})->write("part");
        replaceFile(host, file, "new");
        replaceByCopy(host, file, place.at("copy"));
        const int taken = errorOf([&] { host.create(file, {}); });
        return taken == errors::FileAlreadyExists ? 0 : 1;
    });
    if (result == notHere) GTEST_SKIP() << "calls cannot be refused here";
    EXPECT_EQ(result, 0);
    EXPECT_EQ(TestWorld::readHost(file), "new");
    EXPECT_EQ(Place::modeOf(file), 0640U);
    EXPECT_THAT(place.names(), ElementsAre("copy", "file"));
    // Proof that the other way was gone.
    EXPECT_THAT(leftByOneKilledWriting(place, false), ElementsAre("copy", "file", "new"));
}

}  // namespace
}  // namespace tessaro
