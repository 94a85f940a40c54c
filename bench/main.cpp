// tessaro-bench: prints one line for each figure, with its ratio to a reference and the ratio that
// is aimed at. Ends with 1 if one is missed.

#include <cstdio>
#include <exception>
#include <initializer_list>

#include "bench/figures.h"

int main() {
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
