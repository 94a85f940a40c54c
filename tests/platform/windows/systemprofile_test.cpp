// Our two profile calls beside the system's own, in one process: on the same files every answer and
// every file is the same, or the difference is in `knownDifferences`.

#include <windows.h>

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <map>
#include <random>

#include "platform/files/drives.h"
#include "platform/profile/profilecalls.h"
#include "platform/windows/widetext.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using namespace std::string_literals;
using test::TestWorld;
using Text = std::optional<std::string>;

/// One call, on one file. A call that writes has no size.
struct Case {
    std::string bytes;
    Text section;
    Text key;
    Text text;  // the default of a reading call
    std::size_t size = 0;
    bool writes() const { return size == 0; }
};

std::string shown(const Text& text) {
    return text ? testing::PrintToString(*text) : "null";
}

std::ostream& operator<<(std::ostream& out, const Case& each) {
    out << (each.writes() ? "write " : "read ") << shown(each.section) << ' ' << shown(each.key)
        << ' ' << shown(each.text);
    if (!each.writes()) out << " size " << each.size;
    return out << " in " << testing::PrintToString(each.bytes);
}

/// What came of a call: the answer, and the file's bytes.
struct Outcome {
    std::string answer;
    std::string bytes;
    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << testing::PrintToString(outcome.answer) << ", file "
               << testing::PrintToString(outcome.bytes);
}

class SystemProfile : public testing::Test {
  protected:
    Outcome oursFor(const Case& each) {
        const HostPath file = fresh(each.bytes);
        const std::string path = file.string();
        if (!each.writes()) {
            return {profile_.getPrivateProfileString(each.section, each.key, each.text.value_or(""),
                                                     each.size, path),
                    TestWorld::readHost(file)};
        }
        const bool done = profile_.writePrivateProfileString(each.section.value_or(""), each.key,
                                                             each.text, path);
        return {done ? "done" : "failed", TestWorld::readHost(file)};
    }

    Outcome theirsFor(const Case& each) {
        const HostPath file = fresh(each.bytes);
        const std::string answer = each.writes() ? systemWrite(each, file) : systemRead(each, file);
        return {answer, TestWorld::readHost(file)};
    }

  private:
    // The system remembers files by their names: each case has a new one.
    HostPath fresh(const std::string& bytes) {
        HostPath file = world_.folder() / ("case" + std::to_string(++files_made_) + ".ini");
        TestWorld::writeHost(file, bytes);
        return file;
    }

    struct Wide {
        explicit Wide(const Text& text)
            : there(text.has_value()), wide(toWide(text.value_or(""))) {}
        const wchar_t* get() const { return there ? wide.c_str() : nullptr; }
        bool there;
        std::wstring wide;
    };

    static std::string systemRead(const Case& each, const HostPath& file) {
        std::wstring buffer(each.size, L'#');
        const DWORD got = ::GetPrivateProfileStringW(
            Wide(each.section).get(), Wide(each.key).get(), Wide(each.text).get(), buffer.data(),
            static_cast<DWORD>(buffer.size()), file.c_str());
        buffer.resize(got);
        return fromWide(buffer).value_or("no text");
    }

    static std::string systemWrite(const Case& each, const HostPath& file) {
        const BOOL done = ::WritePrivateProfileStringW(
            Wide(each.section).get(), Wide(each.key).get(), Wide(each.text).get(), file.c_str());
        ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, file.c_str());
        return done ? "done" : "failed";
    }

    TestWorld world_;
    std::unique_ptr<Host> host_ = makeHost();
    Paths paths_{*host_, hostDrives()};
    Files files_{*host_, paths_};
    ProfileCalls profile_{files_};
    int files_made_ = 0;
};

TEST_F(SystemProfile, Explore) {
    std::mt19937 dice(5);
    const std::vector<std::string> parts{
        "[", "]", "=", ";",  " ",   "\t",      "a=1\r\n", "b = 2\r\n", "\r\n", "\r\n", "\n",
        "a", "A", "b", "Ab", "a b", "[a]\r\n", "[b]\r\n", "a=",        "b=1",  "\"",   "'"};
    const std::vector<Text> names{"a", "A", "b", "Ab", "a b", "", std::nullopt};
    const std::vector<Text> values{"",           "x",   "a=b",   "[a]",       ";",
                                   "long value", " x ", "\"x\"", std::nullopt};
    const std::vector<std::size_t> sizes{0, 0, 1, 2, 3, 4, 5, 8, 100, 100, 100};
    for (int round = 0; round < 400; ++round) {
        Case each;
        if (dice() % 3 != 0) each.bytes = "[a]\r\n";
        for (auto count = dice() % 10; count > 0; --count)
            each.bytes += parts[dice() % parts.size()];
        each.section = names[dice() % names.size()];
        each.key = names[dice() % names.size()];
        each.text = values[dice() % values.size()];
        each.size = sizes[dice() % sizes.size()];
        const Outcome ours = oursFor(each);
        const Outcome theirs = theirsFor(each);
        if (ours != theirs)
            std::fprintf(stderr, "%s\n", testing::PrintToString(each).c_str()),
                std::fprintf(stderr, "   ours   %s\n   theirs %s\n",
                             testing::PrintToString(ours).c_str(),
                             testing::PrintToString(theirs).c_str());
    }
}

}  // namespace
}  // namespace tessaro
