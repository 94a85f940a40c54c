#pragma once

#include <string>
#include <vector>

namespace tessaro {

/// What the program was started with, its own name first, in UTF-8. Takes what `main` gets.
std::vector<std::string> programArguments(int argc, char** argv);

}  // namespace tessaro
