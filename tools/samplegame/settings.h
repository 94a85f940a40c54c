#pragma once

#include "platform/files/host.h"

namespace tessaro::sample {

/// Writes the settings of a program that was never started into the file `settings`, with the paths
/// of `game`. Raises std::runtime_error where it cannot.
void pointSettingsAt(const HostPath& game, const HostPath& settings);

}  // namespace tessaro::sample
