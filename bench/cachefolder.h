#pragma once
// What the two figures about extraction share.

#include <cstdio>
#include <string>

#include "bench/world.h"
#include "cache/extraction.h"

namespace tessaro::bench {

inline constexpr char cacheFolder[] = "C:\\UnrealTournament\\Cache";

/// Watches an extraction without doing anything.
class NoObserver : public ExtractionObserver {
  public:
    void show(ExtractionBox, const std::string&) override {}
    void enableStop(bool) override {}
    void setBusyPointer(bool) override {}
    bool stopped() override { return false; }
    bool overwriteExisting() override { return true; }
    void closeRequested() override {}
};

/// How many files an extraction copied, and how many were gone from the cache.
struct Extracted {
    std::size_t copied;
    std::size_t missed;
};

/// One run from a cache folder into `C:\Out`.
inline Extracted extract(World& world, const std::string& from = cacheFolder) {
    FreshProgram fresh(world);
    fresh.program.gamePaths.UTCachePath = from;
    NoObserver observer;
    CacheEntry entry;
    Extraction extraction(fresh.program, observer, entry);
    extraction.entry.mypath = "C:\\Out\\";
    extraction.run(from);
    return {extraction.ListView1.count(), extraction.List2.size()};
}

/// 32 hex digits, another for each number.
inline std::string guidOf(int number) {
    char digits[33];
    std::snprintf(digits, sizeof digits, "25378BF44584EF794EAC6E86%08X",
                  static_cast<unsigned>(number));
    return digits;
}

}  // namespace tessaro::bench
