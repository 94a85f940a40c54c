// Our two profile calls beside the system's own, in one process: on the same files every answer and
// every file is the same, or one of `knownDifferences` tells why not. Most of those are Wine's,
// which takes a file apart and writes all of it anew, where Windows splices the one line.

#include <windows.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <vector>

#include "platform/files/drives.h"
#include "platform/profile/profilecalls.h"
#include "platform/text/lettercase.h"
#include "platform/windows/widetext.h"
#include "support/testworld.h"

namespace tessaro {
namespace {

using namespace std::string_literals;
using test::TestWorld;
using Text = std::optional<std::string>;

// One call on one file.
struct Call {
    std::string bytes;
    Text section;
    Text key;
    Text text;             // what is written, or the default of a reading call
    std::size_t size = 0;  // of a reading call's buffer; 0 for a call that writes
    bool writes() const { return size == 0; }
    std::string defaultText() const { return text.value_or(std::string()); }
};

// What came of it: the answer, and the file's bytes.
struct Outcome {
    std::string answer;
    std::string bytes;
    bool operator==(const Outcome&) const = default;
};

std::string shown(const Text& text) {
    return text ? testing::PrintToString(*text) : "null";
}

std::ostream& operator<<(std::ostream& out, const Call& call) {
    out << (call.writes() ? "write [" : "read [") << shown(call.section) << "] " << shown(call.key)
        << " = " << shown(call.text);
    if (!call.writes()) out << ", size " << call.size;
    return out << ", in " << testing::PrintToString(call.bytes);
}

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << testing::PrintToString(outcome.answer) << ", file "
               << testing::PrintToString(outcome.bytes);
}

// ------------------------------------------------------------------ what may differ, and why

std::string trimmed(std::string text) {
    constexpr const char* blanks = " \t\v";
    text.erase(0, std::min(text.find_first_not_of(blanks), text.size()));
    text.erase(text.find_last_not_of(blanks) + 1);
    return text;
}

std::string unquoted(const std::string& text) {
    const bool quoted = text.size() >= 2 && text.front() == text.back() &&
                        (text.front() == '"' || text.front() == '\'');
    return quoted ? text.substr(1, text.size() - 2) : text;
}

// The lines of a file without blanks at their ends and round the first "=", and without the empty
// ones; those of a section in the order of their texts.
std::vector<std::string> meaningOf(const std::string& bytes) {
    std::vector<std::string> lines;
    auto section = lines.size();
    for (std::size_t at = 0; at < bytes.size();) {
        const std::size_t end = std::min(bytes.find_first_of("\r\n", at), bytes.size());
        std::string line = trimmed(bytes.substr(at, end - at));
        at = end + 1;
        const std::size_t sign = line.find('=');
        if (sign != std::string::npos)
            line = trimmed(line.substr(0, sign)) + '=' + trimmed(line.substr(sign + 1));
        if (line.empty()) continue;
        lines.push_back(line);
        const auto from = lines.begin() + static_cast<std::ptrdiff_t>(section);
        if (line.front() == '[')
            section = lines.size();
        else
            std::sort(from, lines.end());
    }
    return lines;
}

bool hasLineWithoutSign(const std::string& bytes, const std::string& key) {
    const auto lines = meaningOf(bytes);
    return std::ranges::any_of(
        lines, [&](const std::string& line) { return sameName(line, trimmed(key)); });
}

bool samePart(const std::string& ours, const std::string& theirs) {
    return meaningOf(ours) == meaningOf(theirs);
}

struct Difference {
    const char* reason;
    bool (*explains)(const Call& call, const Outcome& ours, const Outcome& theirs);
};

const Difference knownDifferences[] = {
    {"Wine: a write puts all of the file down anew, without blanks round lines, names and values, "
     "without empty lines, with CR LF, and a new key behind the comments at the section's end; "
     "Windows changes the one line",
     [](const Call& call, const Outcome& ours, const Outcome& theirs) {
         return call.writes() && ours.answer == theirs.answer && samePart(ours.bytes, theirs.bytes);
     }},
    {"Wine: lines above the first header are a section with an empty name; on Windows nothing "
     "reaches them",
     [](const Call& call, const Outcome&, const Outcome&) {
         return call.section && trimmed(*call.section).empty();
     }},
    {"Wine: a line without a sign is a key without a value, which a write fills or takes away; on "
     "Windows it is none",
     [](const Call& call, const Outcome& ours, const Outcome& theirs) {
         return call.writes() && call.key && ours.answer == theirs.answer &&
                hasLineWithoutSign(call.bytes, *call.key);
     }},
    {"Wine: a key without a name makes a listing empty or is left out; on Windows it is listed",
     [](const Call& call, const Outcome& ours, const Outcome&) {
         return !call.writes() && !call.key &&
                ("\0"s + ours.answer).find("\0\0"s) != std::string::npos;
     }},
    {"Wine: a default loses its quotes like a value; on Windows they stay",
     [](const Call& call, const Outcome& ours, const Outcome& theirs) {
         const std::string text = call.defaultText();
         return !call.writes() && unquoted(text) != text &&
                ours.answer == text.substr(0, call.size - 1) &&
                unquoted(text).starts_with(theirs.answer);
     }},
    {"a choice of ours: a section without keys, and a file without sections, lists nothing and "
     "not the default",
     [](const Call& call, const Outcome& ours, const Outcome&) {
         return !call.writes() && (!call.key || !call.section) && ours.answer.empty();
     }},
    {"Wine: a default keeps the spaces at its end where a listing is asked for; on Windows it "
     "loses "
     "them always",
     [](const Call& call, const Outcome& ours, const Outcome& theirs) {
         return !call.writes() && !call.key && ours.answer == trimmed(ours.answer) &&
                trimmed(theirs.answer) == trimmed(ours.answer);
     }},
};

const Difference* reasonFor(const Call& call, const Outcome& ours, const Outcome& theirs) {
    const auto* found = std::ranges::find_if(knownDifferences, [&](const Difference& each) {
        return each.explains(call, ours, theirs);
    });
    return found == std::end(knownDifferences) ? nullptr : found;
}

// ------------------------------------------------------------------ both sides

class SystemProfile : public testing::Test {
  protected:
    ~SystemProfile() override {
        std::string counts;
        for (const auto& [reason, count] : differences_)
            counts += "\n" + std::to_string(count) + " x " + reason;
        std::printf("%d calls, %d alike%s\n", calls_, alike_, counts.c_str());
    }

    void compare(const Call& call) {
        const Outcome ours = oursFor(call);
        const Outcome theirs = theirsFor(call);
        ++calls_;
        if (ours == theirs) {
            ++alike_;
        } else if (const Difference* known = reasonFor(call, ours, theirs)) {
            ++differences_[known->reason];
        } else {
            ADD_FAILURE() << call << "\n  ours   " << ours << "\n  theirs " << theirs;
        }
    }
    int alike() const { return alike_; }

  private:
    // The system remembers files by their names: each call has one of its own.
    HostPath fresh(const std::string& bytes) {
        HostPath file = world_.folder() / ("file" + std::to_string(++files_made_) + ".ini");
        TestWorld::writeHost(file, bytes);
        return file;
    }

    Outcome oursFor(const Call& call) {
        const HostPath file = fresh(call.bytes);
        if (!call.writes()) {
            return {profile_.getPrivateProfileString(call.section, call.key, call.defaultText(),
                                                     call.size, file.string()),
                    TestWorld::readHost(file)};
        }
        const bool done = profile_.writePrivateProfileString(call.section.value(), call.key,
                                                             call.text, file.string());
        return {done ? "done" : "failed", TestWorld::readHost(file)};
    }
    Outcome theirsFor(const Call& call) {
        const HostPath file = fresh(call.bytes);
        const std::string answer = call.writes() ? systemWrite(call, file) : systemRead(call, file);
        return {answer, TestWorld::readHost(file)};
    }

    struct Wide {
        explicit Wide(const Text& given)
            : there(given.has_value()), text(toWide(given.value_or(""))) {}
        const wchar_t* get() const { return there ? text.c_str() : nullptr; }
        bool there;
        std::wstring text;
    };
    static std::string systemRead(const Call& call, const HostPath& file) {
        std::wstring buffer(call.size, L'#');
        const DWORD got = ::GetPrivateProfileStringW(
            Wide(call.section).get(), Wide(call.key).get(), Wide(call.text).get(), buffer.data(),
            static_cast<DWORD>(buffer.size()), file.c_str());
        return fromWide(std::wstring_view(buffer).substr(0, got)).value_or("no text");
    }
    static std::string systemWrite(const Call& call, const HostPath& file) {
        const BOOL done = ::WritePrivateProfileStringW(
            Wide(call.section).get(), Wide(call.key).get(), Wide(call.text).get(), file.c_str());
        ::WritePrivateProfileStringW(nullptr, nullptr, nullptr, file.c_str());  // to the disk
        return done ? "done" : "failed";
    }

    TestWorld world_;
    std::unique_ptr<Host> host_ = makeHost();
    Paths paths_{*host_, hostDrives()};
    Files files_{*host_, paths_};
    ProfileCalls profile_{files_};
    int files_made_ = 0;
    int calls_ = 0;
    int alike_ = 0;
    std::map<std::string, int> differences_;
};

const std::string gameFile =
    "[Core.System]\r\nPurgeCacheDays=30\r\nPaths=../System/*.u\r\nPaths=../Maps/*.unr\r\n"
    "[URL]\r\nLocalMap=CityIntro.unr\r\nPort=7777\r\nName=\"Quoted Player\"\r\n"
    "Single='one'\r\nEmpty=\r\n[Empty]\r\n[url]\r\nPort=1\r\n";

TEST_F(SystemProfile, ReadsWhatTheGameWritesAsTheSystemDoes) {
    const std::vector<Text> sections{"URL", "url", " URL ", "Core.System", "Empty", "Missing"};
    const std::vector<Text> keys{"Port",   "PORT",  " port ", "Name",
                                 "Single", "Empty", "Paths",  "no"};
    for (const Text& section : sections)
        for (const Text& key : keys)
            for (const std::size_t size : {1, 2, 5, 100})
                compare({gameFile, section, key, "default", size});
}

TEST_F(SystemProfile, ListsAsTheSystemDoes) {
    for (const Text& section : std::vector<Text>{"URL", "Core.System", "Empty", "No", std::nullopt})
        for (const std::size_t size : {1, 2, 3, 5, 10, 30, 31, 32, 33, 34, 35, 36, 37, 100})
            compare({gameFile, section, std::nullopt, "default", size});
}

TEST_F(SystemProfile, WritesIntoAFileOfTheGameAsTheSystemDoes) {
    const std::vector<Text> texts{"30", "", " blank ", "\"quoted\"", "a=b;c[d]", std::nullopt};
    for (const Text& text : texts)
        for (const char* section : {"URL", "url", "Core.System", "Empty", "New"})
            for (const char* key : {"Port", "PORT", "Paths", "New"})
                compare({gameFile, section, key, text});
    for (const char* section : {"URL", "Empty", "Missing"})
        compare({gameFile, section, std::nullopt, std::nullopt});
    EXPECT_GT(alike(), 90);
}

TEST_F(SystemProfile, OddFilesAreTakenApartAsTheSystemDoes) {
    std::mt19937 dice(5);
    const auto oneOf = [&](const auto& choices) { return choices[dice() % choices.size()]; };
    const std::vector<std::string> parts{
        "]", "=", ";", " ",   "\t", "a=1\r\n", "b = 2\r\n", "\r\n",    "\r\n",    "\n",
        "a", "A", "b", "a b", "\"", "'",       "[b]\r\n",   "[a]\r\n", "a='x'\n", "b=\" y \"\r\n"};
    const std::vector<Text> names{"a", "A", "b", "a b", ""};
    const std::vector<Text> values{"x", "a=b", ";", "long value", " x ", "\"x\"", std::nullopt};
    for (int round = 0; round < 400; ++round) {
        Call call{"[a]\r\n", oneOf(names), oneOf(names), oneOf(values)};
        for (auto count = dice() % 12; count > 0; --count) call.bytes += oneOf(parts);
        if (dice() % 2 == 0) call.size = oneOf(std::vector<std::size_t>{1, 2, 3, 5, 8, 100});
        if (dice() % 6 == 0 && !call.writes()) call.key = std::nullopt;
        compare(call);
    }
}

}  // namespace
}  // namespace tessaro
