#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "editor/loadedfile.h"

namespace tessaro {

/// A line of the text box by its number from 0, without its end.
using BoxLine = std::function<std::u16string(std::size_t)>;

/// Which line of the loaded file a line of the box is.
struct LineOrigin {
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    std::uint32_t line = none;
    bool edited = false;  ///< its text may be another; its end is the loaded one

    bool known() const { return line != none; }
    bool untouched() const { return known() && !edited; }
};

/// Follows through all edits which of the loaded lines stand where in the box.
class LineOrigins {
  public:
    explicit LineOrigins(std::size_t lines);

    /// In the box, `removed` lines from `first` on have become `added` lines; neither is 0. The
    /// last of them stands before the same line end as before.
    void replaced(std::size_t first, std::size_t removed, std::size_t added);

    /// The origin of each line of the box. A line that was taken out and put back, or moved within
    /// one edit, is recognised by its text, between those that were never touched.
    std::vector<LineOrigin> recognised(const LoadedFile& loaded, const BoxLine& box) const;

  private:
    std::vector<LineOrigin> lines_;  // those known come in the order of the file
};

}  // namespace tessaro
