#include "editor/lineorigins.h"

#include <algorithm>
#include <iterator>

#include "editor/linematch.h"

namespace tessaro {
namespace {

using Origins = std::vector<LineOrigin>;

// Touched lines of the box, `from` to `to` (not included), between two that are untouched, and the
// loaded lines that once stood between these.
struct Gap {
    std::size_t from;
    std::size_t to;
    std::size_t loadedFrom;
    std::size_t loadedTo;
};

std::ptrdiff_t offset(std::size_t index) {
    return static_cast<std::ptrdiff_t>(index);
}

std::vector<std::u16string> loadedLines(const LoadedFile& loaded, const Gap& gap) {
    std::vector<std::u16string> lines;
    for (std::size_t line = gap.loadedFrom; line < gap.loadedTo; ++line)
        lines.emplace_back(loaded.line(line));
    return lines;
}

std::vector<std::u16string> boxLines(const BoxLine& box, const Gap& gap) {
    std::vector<std::u16string> lines;
    for (std::size_t line = gap.from; line < gap.to; ++line) lines.push_back(box(line));
    return lines;
}

// Edited lines that came back to their loaded text.
void recogniseInPlace(Origins& lines, const LoadedFile& loaded, const BoxLine& box) {
    for (std::size_t i = 0; i < lines.size(); ++i)
        if (lines[i].edited && box(i) == loaded.line(lines[i].line)) lines[i].edited = false;
}

void recogniseInGap(Origins& lines, const Gap& gap, const LoadedFile& loaded, const BoxLine& box) {
    const auto found = matchLines(boxLines(box, gap), loadedLines(loaded, gap));
    for (std::size_t i = gap.from; i < gap.to; ++i) {
        // A line end goes with the text that it was loaded with, rather than with an edited line.
        const std::size_t own = lines[i].line - gap.loadedFrom;
        if (lines[i].known() && std::ranges::find(found, own) != found.end()) lines[i] = {};
    }
    for (std::size_t i = 0; i < found.size(); ++i)
        if (found[i] != noLine)
            lines[gap.from + i] = {static_cast<std::uint32_t>(gap.loadedFrom + found[i]), false};
}

}  // namespace

LineOrigins::LineOrigins(std::size_t lines) : lines_(lines) {
    for (std::size_t i = 0; i < lines; ++i) lines_[i].line = static_cast<std::uint32_t>(i);
}

void LineOrigins::replaced(std::size_t first, std::size_t removed, std::size_t added) {
    const auto begin = lines_.begin() + offset(first);
    LineOrigin last = *(begin + offset(removed - 1));
    last.edited = last.known();
    std::fill(begin, begin + offset(std::min(removed, added)), LineOrigin());
    if (added > removed)
        lines_.insert(begin + offset(removed), added - removed, LineOrigin());
    else
        lines_.erase(begin + offset(added), begin + offset(removed));
    lines_[first + added - 1] = last;
}

Origins LineOrigins::recognised(const LoadedFile& loaded, const BoxLine& box) const {
    Origins lines = lines_;
    recogniseInPlace(lines, loaded, box);
    std::size_t loadedFrom = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (!lines[i].untouched()) {
            const auto to = std::find_if(lines.begin() + offset(i), lines.end(),
                                         [](const LineOrigin& line) { return line.untouched(); });
            const auto end = static_cast<std::size_t>(to - lines.begin());
            const std::size_t loadedTo = to == lines.end() ? loaded.lineCount() : to->line;
            recogniseInGap(lines, {i, end, loadedFrom, loadedTo}, loaded, box);
            i = end;
            if (i == lines.size()) break;
        }
        loadedFrom = lines[i].line + 1;
    }
    return lines;
}

}  // namespace tessaro
