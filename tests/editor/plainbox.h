#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/boxtext.h"

namespace tessaro::test {

using BoxLines = std::vector<std::u16string>;

/// A text box without a window: lines without their ends.
class PlainBox {
  public:
    /// Told of each edit, as the real box tells it.
    std::function<void(std::size_t first, std::size_t removed, std::size_t added)> changed;

    void show(std::u16string_view text) {
        BoxLines shown(1);
        for (std::size_t i = 0; i < text.size();) {
            const std::size_t end = lineEndAt(text, i);
            if (end == 0)
                shown.back() += text[i];
            else
                shown.emplace_back();
            i += end == 0 ? 1 : end;
        }
        edit(0, lines.size(), std::move(shown));
    }

    /// Puts `added` in the place of so many lines.
    void edit(std::size_t first, std::size_t removed, BoxLines added) {
        const std::size_t count = added.size();
        const auto begin = lines.begin() + static_cast<std::ptrdiff_t>(first);
        const auto place = lines.erase(begin, begin + static_cast<std::ptrdiff_t>(removed));
        lines.insert(place, added.begin(), added.end());
        if (changed) changed(first, removed, count);
    }

    const std::u16string& line(std::size_t number) const { return lines.at(number); }

    BoxLines lines = BoxLines(1);
};

}  // namespace tessaro::test
