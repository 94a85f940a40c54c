// Several programs at one profile file at the same time.

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/forkedchild.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using test::ForkedChild;
using test::TemporaryFolder;
using test::TestWorld;

// A program of ours of its own, with its own view of the files.
struct OurProgram {
    std::unique_ptr<Host> host = makeHost();
    Paths paths{*host, {{'Z', "/"}}};
    Files files{*host, paths};
    ProfileCalls profile{files};
};

std::string nameOf(char program, int number) {
    return program + std::to_string(number);
}

// Two programs make `count` changes each; gives the file that comes of it.
template <class Change>
std::string changedByTwo(const std::string& start, int count, const Change& change) {
    const TemporaryFolder folder(test::inMemory());
    const HostPath file = folder.path() / "user.ini";
    TestWorld::writeHost(file, start);
    const auto work = [&](char program) {
        OurProgram ours;
        const std::string path = ours.paths.toGame(file);
        for (int i = 0; i < count; ++i) change(ours, path, nameOf(program, i));
        return 0;
    };
    {
        ForkedChild one([&] { return work('a'); });
        ForkedChild other([&] { return work('b'); });
        EXPECT_EQ(one.exitCode(), 0);
        EXPECT_EQ(other.exitCode(), 0);
    }
    EXPECT_EQ(TestWorld::namesIn(folder.path()), std::vector<std::string>{"user.ini"});
    return TestWorld::readHost(file);
}

int lostOf(const std::string& text, int count, const std::string& lineEnd) {
    int lost = 0;
    for (int i = 0; i < count; ++i) {
        for (const char program : {'a', 'b'}) {
            if (text.find("\n" + nameOf(program, i) + lineEnd) == std::string::npos) ++lost;
        }
    }
    return lost;
}

TEST(SharedProfile, TwoOfOurProgramsLoseNoLineOfTwoThousand) {
    const auto append = [](OurProgram& ours, const std::string& path, const std::string& line) {
        ours.files.change(path, [&](std::string_view bytes) {
            return std::optional(std::string(bytes) + line + "\n");
        });
    };
    EXPECT_EQ(lostOf(changedByTwo("\n", 1000, append), 1000, "\n"), 0);
}

TEST(SharedProfile, TwoOfOurProgramsLoseNoKey) {
    const auto write = [](OurProgram& ours, const std::string& path, const std::string& key) {
        if (!ours.profile.writePrivateProfileString("s", key, "1", path)) std::abort();
    };
    EXPECT_EQ(lostOf(changedByTwo("[s]\n", 200, write), 200, "=1\n"), 0);
}

}  // namespace
}  // namespace tessaro
