// The calls remember what they have read. Whatever another program does to the file between two of
// them, they must answer as if they had read it anew.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <memory>
#include <new>
#include <random>

#include "support/forkedchild.h"
#include "support/profilereads.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

namespace fs = std::filesystem;
using test::Call;
using test::ForkedChild;
using test::TestWorld;

constexpr std::string_view userIni = "C:\\game\\user.ini";

// Changes the file past the program, in all ways there are, and knows what it holds without
// opening it, which would be noticed.
class OtherProgram {
  public:
    explicit OtherProgram(TestWorld& world) : world_(world) { replace(fresh(0)); }

    const std::string& content() const { return content_; }

    void act(std::size_t number) {
        const std::function<void()> acts[] = {
            [this] { pokeInPlace(world_.at(userIni)); },
            [this] { pokeInPlace(twin()); },
            [this] { pokeMapped(); },
            [this] { mapped_.reset(); },
            [this] { rewriteInPlace(); },
            [this] { cut(); },
            [this] { append(); },
            [this] { replace(fresh(++age_)); },
            [this] { replaceFolder(fresh(++age_)); },
            [this] { writeThroughLink(); },
            [this] { throughOurOwnCall(); },
        };
        acts[number % std::size(acts)]();
    }

  private:
    using Mapping = std::unique_ptr<char, std::function<void(char*)>>;

    // All of one size.
    static std::string fresh(int age) {
        return "[s]\na=" + std::to_string(1000 + age % 9000) + "\nb=x\n";
    }
    HostPath beside(const std::string& name) const { return world_.driveC() / name; }
    char nextDigit() { return static_cast<char>('1' + ++age_ % 9); }

    // A second name of the same file.
    HostPath twin() const {
        fs::remove(beside("twin"));
        fs::create_hard_link(fs::canonical(world_.at(userIni)), beside("twin"));
        return beside("twin");
    }
    void pokeInPlace(const HostPath& file) {
        const int opened = ::open(file.c_str(), O_WRONLY);
        struct stat before = {};
        ::fstat(opened, &before);
        content_[6] = nextDigit();
        ASSERT_EQ(::pwrite(opened, &content_[6], 1, 6), 1);
        const timespec stamps[] = {before.st_atim, before.st_mtim};
        ::futimens(opened, stamps);
        ::close(opened);
    }
    // The first time it maps the file, and from then on only changes memory.
    void pokeMapped() {
        if (!mapped_) {
            const int opened = ::open(world_.at(userIni).c_str(), O_RDWR);
            void* memory = ::mmap(nullptr, 8, PROT_READ | PROT_WRITE, MAP_SHARED, opened, 0);
            ::close(opened);
            ASSERT_NE(memory, MAP_FAILED);
            mapped_ = Mapping(static_cast<char*>(memory), [](char* bytes) { ::munmap(bytes, 8); });
        }
        content_[6] = nextDigit();
        mapped_.get()[6] = content_[6];
    }
    void rewriteInPlace() {
        mapped_.reset();
        TestWorld::writeHost(world_.at(userIni), content_ = fresh(++age_));
    }
    void cut() {
        mapped_.reset();
        content_.resize(9);
        fs::resize_file(world_.at(userIni), 9);
    }
    void append() {
        const std::string more = "\nc=" + std::to_string(++age_) + "\n";
        const int opened = ::open(world_.at(userIni).c_str(), O_WRONLY | O_APPEND);
        ASSERT_EQ(::write(opened, more.data(), more.size()), static_cast<ssize_t>(more.size()));
        ::close(opened);
        content_ += more;
    }
    void replace(const std::string& text) {
        mapped_.reset();
        TestWorld::writeHost(beside("new"), content_ = text);
        fs::create_directories(world_.at(userIni).parent_path());
        fs::rename(beside("new"), world_.at(userIni));
    }
    void replaceFolder(const std::string& text) {
        mapped_.reset();
        fs::remove_all(beside("old"));
        TestWorld::writeHost(beside("folder") / "user.ini", content_ = text);
        fs::rename(world_.at(userIni).parent_path(), beside("old"));
        fs::rename(beside("folder"), world_.at(userIni).parent_path());
    }
    void writeThroughLink() {
        mapped_.reset();
        TestWorld::writeHost(beside("linked"), content_ = fresh(++age_));
        fs::remove(world_.at(userIni));
        fs::create_symlink("../linked", world_.at(userIni));
    }
    void throughOurOwnCall() {
        mapped_.reset();
        const std::string value = std::to_string(++age_);
        ASSERT_TRUE(world_.profile.writePrivateProfileString("s", "d", value, userIni));
        content_ = TestWorld::readHost(world_.at(userIni));
    }

    TestWorld& world_;
    std::string content_;
    int age_ = 0;
    Mapping mapped_;
};

std::string valueNow(TestWorld& world, const std::string& key) {
    world.files.touch(userIni);
    return world.profile.getPrivateProfileString("s", key, "?", 100, userIni);
}

TEST(ProfileMemory, AnswersAsAFreshReadWhateverHappensInBetween) {
    TestWorld world;
    OtherProgram other(world);
    std::mt19937 dice(6);
    int asked = 0;
    for (int round = 0; round < 800; ++round) {
        const std::size_t number = dice();
        other.act(number);
        if (testing::Test::HasFatalFailure()) return;
        for (const std::string key : {"a", "b", "c", "a"}) {
            const auto expected = test::profileValue(other.content(), "s", key);
            ASSERT_EQ(valueNow(world, key), expected.value_or("?"))
                << "round " << round << ", act " << number % 11 << ", key " << key;
            ++asked;
        }
    }
    if (!world.host.readWatched(world.at(userIni)).watch) GTEST_SKIP() << "no watches on this disk";
    EXPECT_LT(world.host.count(Call::Read), asked * 9 / 10) << "nothing was remembered";
}

// What two processes tell each other.
struct Shared {
    std::atomic<int> written{0};  // the number that the file holds at least
    std::atomic<bool> enough{false};
};

// A child process that writes numbers that grow, and says so after each, until its end is near.
class Writer {
  public:
    using Write = std::function<void(int number)>;

    explicit Writer(const Write& write)
        : memory_(::mmap(nullptr, sizeof(Shared), PROT_READ | PROT_WRITE,
                         MAP_SHARED | MAP_ANONYMOUS, -1, 0)),
          shared_(*new (memory_) Shared) {
        write(0);
        child_.emplace([&] {
            for (int number = 1; !shared_.enough; ++number) {
                write(number);
                shared_.written = number;
            }
            return 0;
        });
    }
    ~Writer() {
        shared_.enough = true;
        EXPECT_EQ(child_->exitCode(), 0);
        ::munmap(memory_, sizeof(Shared));
    }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    int written() const { return shared_.written; }

  private:
    void* memory_;
    Shared& shared_;
    std::optional<ForkedChild> child_;
};

constexpr int questions = 3000;
constexpr int fewestWrites = 500;

TEST(ProfileMemory, NoAnswerIsOlderThanAFileThatAnotherProgramReplacesAllTheTime) {
    TestWorld world;
    world.makeFolder("C:\\game");
    const Writer writer([&](int number) {
        const HostPath beside = world.at("C:\\new");
        TestWorld::writeHost(beside, "[s]\nk=" + std::to_string(100'000'000 + number) + "\n");
        fs::rename(beside, world.at(userIni));
    });
    for (int i = 0; i < questions || writer.written() < fewestWrites; ++i) {
        const int said = writer.written();
        const std::string answer = valueNow(world, "k");
        ASSERT_GE(std::stoi(answer), 100'000'000 + said);
    }
}

// One byte, so that no read can meet a number that is half written.
TEST(ProfileMemory, NoAnswerIsOlderThanAFileThatAnotherProgramWritesInPlaceAllTheTime) {
    TestWorld world;
    world.write(userIni, "[s]\nk=A\n");
    const auto letter = [](int number) { return static_cast<char>('A' + number % 26); };
    const Writer writer([&](int number) {
        const int opened = ::open(world.at(userIni).c_str(), O_WRONLY);
        const char byte = letter(number);
        if (::pwrite(opened, &byte, 1, 6) != 1) std::abort();
        ::close(opened);
    });
    for (int i = 0; i < questions || writer.written() < fewestWrites; ++i) {
        const int said = writer.written();
        const std::string answer = valueNow(world, "k");
        const int now = writer.written() + 1;  // one may be written and not yet said
        std::string possible;
        for (int number = said; number <= now && number < said + 26; ++number)
            possible += letter(number);
        ASSERT_NE(possible.find(answer), std::string::npos) << answer << " of " << possible;
    }
}

}  // namespace
}  // namespace tessaro
