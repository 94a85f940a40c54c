#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessaro {

inline constexpr std::size_t noLine = static_cast<std::size_t>(-1);

/// Tells for each line of `now` which line of `before` it is, or `noLine`. Lines are the same if
/// their texts are; those that are found come in the same order on both sides.
///
/// Lines that begin and end both texts alike are taken first, then those whose text stands only
/// once in both (as many of them as keep their order), then the same again between these.
std::vector<std::size_t> matchLines(const std::vector<std::u16string>& now,
                                    const std::vector<std::u16string>& before);

}  // namespace tessaro
