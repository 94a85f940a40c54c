#pragma once

#include "tools/samplegame/samplegame.h"
#include "tools/samplegame/tree.h"

namespace tessaro::sample {

/// Fills the folder Cache, which must exist: packages, cache.ini, packages without a line and a
/// download that was broken off. Writes down in `layout` what it made.
void fillCache(Tree& tree, Rng& rng, const Options& options, Layout& layout);

}  // namespace tessaro::sample
