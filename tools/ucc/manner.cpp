#include "tools/ucc/manner.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

namespace tessaro::ucc {

namespace {

using namespace std::chrono_literals;

struct Word {
    std::string_view word;
    Manner manner;
};

constexpr std::array words{
    Word{"", Manner::Proper},          Word{"silent", Manner::Silent},
    Word{"crash", Manner::Crash},      Word{"othername", Manner::OtherName},
    Word{"slow", Manner::Slow},        Word{"utf16", Manner::Utf16},
    Word{"stdin", Manner::ReadsInput},
};

}  // namespace

Manner mannerFromEnvironment() {
    const char* value = std::getenv("TESSARO_UCC");
    const std::string_view word = value ? value : "";
    const auto* known = std::ranges::find(words, word, &Word::word);
    if (known == words.end())
        throw std::runtime_error("TESSARO_UCC is set to an unknown word: " + std::string(word));
    return known->manner;
}

void dawdle() {
    const char* release = std::getenv("TESSARO_UCC_RELEASE");
    if (!release) return std::this_thread::sleep_for(5s);
    while (!std::filesystem::exists(release)) std::this_thread::sleep_for(2ms);
}

std::filesystem::path outputName(const std::filesystem::path& file, Manner manner) {
    if (manner != Manner::OtherName) return file;
    return (file.parent_path() / "other-") += file.filename();
}

}  // namespace tessaro::ucc
