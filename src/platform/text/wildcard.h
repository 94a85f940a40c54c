#pragma once

#include <string_view>

namespace tessaro {

/// Whether a text stands for a set of names: holds `*` or `?`.
bool hasWildcard(std::string_view pattern);

/// Whether a name fits a pattern: `*` is any run of characters, `?` any one, case does not matter.
/// A pattern that ends in `.*` also fits names without an extension, so `*.*` fits every name.
bool matchesWildcard(std::string_view pattern, std::string_view name);

}  // namespace tessaro
