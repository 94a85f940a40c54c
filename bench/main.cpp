// tessaro-bench: prints one line for each figure, with its ratio to a reference and the ratio that
// is aimed at. Ends with 1 if one is missed.

#include <malloc.h>

#include <cstdio>
#include <exception>
#include <initializer_list>
#include <limits>

#include "bench/figures.h"

namespace {

// What either side gives back stays with the process: else the one whose memory happens to lie at
// the heap's end pays each time for taking it anew.
void keepMemory() {
    ::mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    ::mallopt(M_MMAP_MAX, 0);
}

}  // namespace

int main() {
    keepMemory();
    try {
        using namespace tessaro::bench;
        bool kept = true;
        for (const auto figure :
             {extractMissingFiles, extractMissingNativeFiles, extractPresentFiles, profileFile,
              importFavorites, serverList, playerList, editor, screenshots, compressBatch}) {
            for (const Place& place : {disk(), memory()}) kept = figure(place) && kept;
        }
        for (const auto figure : {firstPaint, openings}) kept = figure() && kept;
        return kept ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "The benchmarks broke off: %s\n", error.what());
        return 2;
    }
}
