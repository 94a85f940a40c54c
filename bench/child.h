#pragma once

#include <string>
#include <vector>

namespace tessaro::bench {

/// Starts a program and waits for its end. Gives what it printed. Raises std::runtime_error if it
/// cannot be started or fails.
std::string outputOf(const std::vector<std::string>& arguments);

}  // namespace tessaro::bench
