#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

#include "platform/files/drives.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;

// Sets a variable for one test; an empty value unsets it.
class Variable {
  public:
    Variable(const char* name, const std::string& value) : name_(name) {
        if (const char* old = std::getenv(name)) old_ = old;
        set(value);
    }
    ~Variable() { set(old_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    void set(const std::string& value) const {
        if (value.empty()) {
            ::unsetenv(name_);
        } else {
            ::setenv(name_, value.c_str(), 1);
        }
    }
    const char* name_;
    std::string old_;
};

struct Prefix {
    test::TemporaryFolder folder;
    HostPath path = folder.path() / "prefix";
    Variable variable{"WINEPREFIX", path.string()};

    void makeFolders() const {
        fs::create_directories(path / "drive_c");
        fs::create_directories(path / "dosdevices");
    }
    void link(const char* name, const HostPath& to) const {
        fs::create_symlink(to, path / "dosdevices" / name);
    }
};

TEST(WinePrefix, WithoutOneThereIsOnlyTheRoot) {
    const Prefix prefix;
    EXPECT_EQ(hostDrives(), (DriveMap{{'Z', "/"}}));
}

TEST(WinePrefix, TheWindowsFolderIsDriveCWithoutALinkToo) {
    const Prefix prefix;
    fs::create_directories(prefix.path / "drive_c");
    EXPECT_EQ(hostDrives(), (DriveMap{{'C', prefix.path / "drive_c"}, {'Z', "/"}}));
}

TEST(WinePrefix, LinksAreDrivesByTheirCanonicalFolders) {
    const Prefix prefix;
    prefix.makeFolders();
    fs::create_directories(prefix.folder.path() / "games");
    prefix.link("c:", "../drive_c");
    prefix.link("d:", "../../games");
    prefix.link("z:", "/");
    EXPECT_EQ(hostDrives(), (DriveMap{{'C', prefix.path / "drive_c"},
                                      {'D', prefix.folder.path() / "games"},
                                      {'Z', "/"}}));
}

TEST(WinePrefix, WhatIsNoFolderIsNoDrive) {
    const Prefix prefix;
    prefix.makeFolders();
    prefix.link("d:", "../gone");
    prefix.link("e::", "/dev/null");
    prefix.link("f:", "/dev/null");
    prefix.link("com1", "/dev/null");
    prefix.link("lpt1:", "/");
    EXPECT_EQ(hostDrives(), (DriveMap{{'C', prefix.path / "drive_c"}, {'Z', "/"}}));
}

TEST(WinePrefix, TheUsersOwnLinksCountForCAndZToo) {
    const Prefix prefix;
    prefix.makeFolders();
    fs::create_directories(prefix.folder.path() / "other");
    prefix.link("c:", "../../other");
    prefix.link("z:", "../drive_c");
    EXPECT_EQ(hostDrives(),
              (DriveMap{{'C', prefix.folder.path() / "other"}, {'Z', prefix.path / "drive_c"}}));
}

TEST(WinePrefix, LiesInTheHomeFolderUnlessTheEnvironmentSaysOtherwise) {
    const test::TemporaryFolder folder;
    const Variable prefix("WINEPREFIX", "");
    const Variable home("HOME", folder.path().string());
    fs::create_directories(folder.path() / ".wine" / "drive_c");
    EXPECT_EQ(hostDrives().at('C'), folder.path() / ".wine" / "drive_c");
}

}  // namespace
}  // namespace tessaro
