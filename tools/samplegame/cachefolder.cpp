#include "tools/samplegame/cachefolder.h"

#include <chrono>
#include <utility>

#include "tools/samplegame/names.h"

namespace tessaro::sample {

namespace {

constexpr std::uint32_t oldestDays = 400;
constexpr int unlistedCount = 3;

// Small ones are many, large ones few, as among real downloads.
std::uint32_t packageSize(Rng& rng) {
    const std::uint32_t kind = rng.below(100);
    if (kind < 45) return rng.between(2'048, 40'000);
    return kind < 85 ? rng.between(40'000, 300'000) : rng.between(300'000, 1'000'000);
}

std::string writePackage(Tree& tree, Rng& rng, std::uint32_t size, std::uint32_t ageDays,
                         const Options& options) {
    const Guid guid = Guid::random(rng);
    const auto file = tree.write("Cache/" + guid.text() + ".uxx", packageBytes(guid, size, rng));
    std::filesystem::last_write_time(file, options.now - std::chrono::hours(24) * ageDays);
    return guid.text();
}

std::vector<CachedName> shuffledNames(Rng& rng) {
    const auto names = cachedNames();
    std::vector<CachedName> shuffled(names.begin(), names.end());
    for (std::size_t left = shuffled.size(); left > 1; --left)
        std::swap(shuffled[left - 1], shuffled[rng.below(static_cast<std::uint32_t>(left))]);
    return shuffled;
}

// Ages fall evenly from the oldest to today, since the game writes a line per download.
std::uint32_t ageOfLine(std::size_t line, std::size_t lines) {
    return oldestDays - static_cast<std::uint32_t>(oldestDays * line / (lines - 1));
}

CacheFile makeLine(Tree& tree, Rng& rng, const CachedName& name, std::uint32_t ageDays,
                   const Options& options) {
    CacheFile line{{}, std::string(name.trueName), name.present, 0};
    if (name.present) {
        const std::uint32_t size = packageSize(rng);
        line.guid = writePackage(tree, rng, size, ageDays, options);
        line.bytes = size;
    } else {
        line.guid = Guid::random(rng).text();
    }
    return line;
}

void fillLines(Tree& tree, Rng& rng, const Options& options, Layout& layout) {
    const std::vector<CachedName> names = shuffledNames(rng);
    for (const CachedName& name : names) {
        const std::uint32_t ageDays = ageOfLine(layout.cacheLines.size(), names.size());
        layout.cacheLines.push_back(makeLine(tree, rng, name, ageDays, options));
    }
    tree.write("Cache/cache.ini", cacheIndex(layout.cacheLines));
}

}  // namespace

// Each draw stands in a statement of its own: the order in which arguments are evaluated is the
// compiler's choice.
void fillCache(Tree& tree, Rng& rng, const Options& options, Layout& layout) {
    fillLines(tree, rng, options, layout);
    for (int i = 0; i < unlistedCount; ++i) {
        const std::uint32_t size = packageSize(rng);
        const std::uint32_t ageDays = rng.below(oldestDays);
        const std::string guid = writePackage(tree, rng, size, ageDays, options);
        layout.unlistedPackages.push_back(guid + ".uxx");
    }
    layout.unfinishedDownload = "1234.tmp";
    const std::uint32_t size = rng.between(2'048, 40'000);
    tree.write("Cache/" + layout.unfinishedDownload, packageBytes(Guid::random(rng), size, rng));
}

}  // namespace tessaro::sample
