// Random files and random changes, compared with a plain reading of the rules.

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "platform/profile/profileedit.h"
#include "support/plainprofile.h"
#include "support/profilereads.h"

namespace tessaro {
namespace {

using namespace std::string_literals;
using test::plainlyChanged;
using test::plainValue;
using test::profileValue;

using Found = std::optional<std::string>;
using Choices = std::vector<std::string>;

class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}
    std::size_t below(std::size_t count) { return engine_() % count; }
    bool once(std::size_t in) { return below(in) == 0; }
    const std::string& oneOf(const Choices& choices) { return choices[below(choices.size())]; }
    std::string textOf(const Choices& parts, std::size_t most) {
        std::string text;
        for (std::size_t count = below(most); count > 0; --count) text += oneOf(parts);
        return text;
    }

  private:
    std::mt19937 engine_;
};

const Choices names{"a", "A", "b", "Ab", "a b", ""};
const Choices values{"", "x", "a=b", "[a]", ";", "long value"};
const Choices parts{"[",    "]",    "=",   ";",       " ",    "\t", "\v", "\r",  "\n",
                    "\r\n", "\r\n", "\n",  "a",       "A",    "b",  "Ab", "a b", "[a]",
                    "[b]",  "a=",   "b=1", "\n[a]\n", "\na=", "#",  "\0"s};

// Letters in the code page and in UTF-8, which are each other's nonsense, and such that only one of
// the two has.
const Choices letterNames{"a", "é", "É", "Ã©", "ã©", "€", "Ł", "ł", "Ж", "aé"};
const Choices letterValues{"", "x", "é", "Ã©", "€", "Ł", "Ã", "漢", "\xF0\x9F\x8E\xAE"};
const Choices letterParts{
    "\n",       "\n",         "\r\n",           "=",           "=",      "a",
    "\xE9",     "\xC3\xA9",   "\xC9",           "\xC3\x89",    "\x80",   "\xE2\x82\xAC",
    "\xC5\x81", "\xC3",       "\xA9",           "[",           "]",      ";",
    "\n[a]\n",  "\n[\xE9]\n", "\n[\xC3\xA9]\n", "\n\xC3\xA9=", "\n\xE9="};

// A file in any encoding, or in a mixture of two.
std::string letterFile(Dice& dice) {
    std::string text = dice.textOf(letterParts, 16);
    if (dice.once(3)) text = "[" + dice.oneOf({"\xE9", "\xC3\xA9", "a"}) + "]" + text;
    if (dice.once(6)) return "\xEF\xBB\xBF" + text;
    if (!dice.once(4)) return text;
    const auto wide = dice.once(2) ? Encoding::Utf16LittleEndian : Encoding::Utf16BigEndian;
    return encodeText(text, wide).value() + (dice.once(3) ? "z" : "");
}

struct Arguments {
    std::string bytes;
    std::string section;
    std::string key;
    std::string value;
};

std::ostream& operator<<(std::ostream& out, const Arguments& arguments) {
    return out << testing::PrintToString(arguments.bytes) << " [" << arguments.section << "] "
               << arguments.key << "=" << arguments.value;
}

Arguments plainArguments(Dice& dice) {
    return {dice.textOf(parts, 24), dice.oneOf(names), dice.oneOf(names), dice.oneOf(values)};
}

Arguments letterArguments(Dice& dice) {
    return {letterFile(dice), dice.oneOf(letterNames), dice.oneOf(letterNames),
            dice.oneOf(letterValues)};
}

// The order of the parameters of a test: which arguments, and how many rounds of them.
using Case = std::pair<Arguments (*)(Dice&), int>;

class ProfileRandom : public testing::TestWithParam<Case> {
  protected:
    template <class Check>
    void forAll(unsigned seed, const Check& check) {
        Dice dice(seed);
        for (int round = 0; round < GetParam().second; ++round) {
            check(GetParam().first(dice), dice);
            if (HasFatalFailure()) return;
        }
    }
};

TEST_P(ProfileRandom, ReadsAsAPlainReadingOfTheLinesDoes) {
    forAll(1, [](const Arguments& given, Dice&) {
        ASSERT_EQ(profileValue(given.bytes, given.section, given.key),
                  plainValue(given.bytes, given.section, given.key))
            << given;
    });
}

TEST_P(ProfileRandom, WritesAsAPlainWorkOnTheLinesDoes) {
    forAll(2, [](const Arguments& given, Dice&) {
        const auto result = changedProfile(given.bytes, {given.section, given.key, given.value});
        ASSERT_EQ(result.value_or(given.bytes),
                  plainlyChanged(given.bytes, given.section, given.key, given.value))
            << given;
        ASSERT_NE(result, given.bytes) << "a change that changes nothing";
    });
}

TEST_P(ProfileRandom, WhatWasWrittenReadsBack) {
    forAll(3, [](const Arguments& given, Dice&) {
        const ProfileChange change{given.section, given.key, given.value};
        const std::string bytes = changedProfile(given.bytes, change).value_or(given.bytes);
        ASSERT_EQ(profileValue(bytes, given.section, given.key), given.value) << given;
        ASSERT_EQ(changedProfile(bytes, change), std::nullopt) << given;
    });
}

TEST_P(ProfileRandom, DeletesAsAPlainWorkOnTheLinesDoes) {
    forAll(4, [](const Arguments& given, Dice& dice) {
        const Found key = dice.once(2) ? Found() : Found(given.key);
        const auto result = changedProfile(given.bytes, {given.section, key, std::nullopt});
        ASSERT_EQ(result.value_or(given.bytes),
                  plainlyChanged(given.bytes, given.section, key, std::nullopt))
            << given << (key ? "" : " (all)");
        ASSERT_NE(result, given.bytes) << "a change that changes nothing";
    });
}

// Each deletion takes one line of the key away, until there is none.
TEST_P(ProfileRandom, WhatWasDeletedOftenEnoughIsGone) {
    forAll(5, [](const Arguments& given, Dice&) {
        const ProfileChange change{given.section, given.key, std::nullopt};
        std::string bytes = given.bytes;
        for (int most = 20; const auto less = changedProfile(bytes, change); --most) {
            ASSERT_GT(most, 0) << given;
            bytes = *less;
        }
        ASSERT_EQ(profileValue(bytes, given.section, given.key), Found()) << given;
    });
}

INSTANTIATE_TEST_SUITE_P(Ascii, ProfileRandom, testing::Values(Case{plainArguments, 4000}));
INSTANTIATE_TEST_SUITE_P(Letters, ProfileRandom, testing::Values(Case{letterArguments, 10000}));

}  // namespace
}  // namespace tessaro
