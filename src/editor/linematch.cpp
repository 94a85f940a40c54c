#include "editor/linematch.h"

#include <algorithm>
#include <map>
#include <string_view>

namespace tessaro {
namespace {

using Lines = std::vector<std::u16string>;

// Lines `from` to `to` (not included) of a text.
struct Range {
    std::size_t from;
    std::size_t to;
    bool empty() const { return from == to; }
};

// The same line in both texts.
struct Pair {
    std::size_t now;
    std::size_t before;
};

// The most of the pairs, which come in the order of the one text, that are in order in the other.
std::vector<Pair> inOrder(const std::vector<Pair>& pairs) {
    // For each length of a chain the pair that ends it soonest, and for each pair the one before.
    std::vector<std::size_t> ends;
    std::vector<std::size_t> previous(pairs.size(), noLine);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        const auto longer = std::ranges::lower_bound(
            ends, pairs[i].before, {}, [&](std::size_t end) { return pairs[end].before; });
        if (longer != ends.begin()) previous[i] = *(longer - 1);
        if (longer == ends.end()) {
            ends.push_back(i);
        } else {
            *longer = i;
        }
    }
    std::vector<Pair> chain;
    for (std::size_t i = ends.empty() ? noLine : ends.back(); i != noLine; i = previous[i])
        chain.push_back(pairs[i]);
    std::ranges::reverse(chain);
    return chain;
}

class Matching {
  public:
    Matching(const Lines& now, const Lines& before)
        : now_(now), before_(before), found_(now.size(), noLine) {
        match({0, now.size()}, {0, before.size()});
    }

    std::vector<std::size_t> take() { return std::move(found_); }

  private:
    void match(Range now, Range before) {
        matchEnds(now, before);
        const auto pairs = inOrder(uniquePairs(now, before));
        if (pairs.empty()) return;
        for (const Pair& pair : pairs) {
            match({now.from, pair.now}, {before.from, pair.before});
            found_[pair.now] = pair.before;
            now.from = pair.now + 1;
            before.from = pair.before + 1;
        }
        match(now, before);
    }

    void matchEnds(Range& now, Range& before) {
        const auto open = [&] { return !now.empty() && !before.empty(); };
        while (open() && now_[now.from] == before_[before.from]) found_[now.from++] = before.from++;
        while (open() && now_[now.to - 1] == before_[before.to - 1]) found_[--now.to] = --before.to;
    }

    std::vector<Pair> uniquePairs(Range now, Range before) const {
        struct Places {
            std::size_t timesNow = 0;
            std::size_t timesBefore = 0;
            std::size_t before = noLine;
        };
        if (now.empty() || before.empty()) return {};
        std::map<std::u16string_view, Places> places;
        for (std::size_t i = now.from; i < now.to; ++i) ++places[now_[i]].timesNow;
        for (std::size_t i = before.from; i < before.to; ++i) {
            Places& line = places[before_[i]];
            ++line.timesBefore;
            line.before = i;
        }
        std::vector<Pair> pairs;
        for (std::size_t i = now.from; i < now.to; ++i) {
            const Places& line = places[now_[i]];
            if (line.timesNow == 1 && line.timesBefore == 1) pairs.push_back({i, line.before});
        }
        return pairs;
    }

    const Lines& now_;
    const Lines& before_;
    std::vector<std::size_t> found_;
};

}  // namespace

std::vector<std::size_t> matchLines(const Lines& now, const Lines& before) {
    return Matching(now, before).take();
}

}  // namespace tessaro
