#pragma once

#include <vector>

namespace tessaro {

/// Shares the width of a list out among its columns, in pixels. `wanted` is what each column's
/// texts take, `least` what its head takes.
///
/// Where there is more than all of them want, each gets its part of it. Where there is less, the
/// first column, which holds the names, is served first, up to three fifths, and the others share
/// the rest; none gets less than its head takes, even if the list has to be scrolled then.
std::vector<int> sharedWidths(const std::vector<int>& wanted, const std::vector<int>& least,
                              int total);

}  // namespace tessaro
