#include "platform/outside/arguments.h"

namespace tessaro {

std::vector<std::string> programArguments(int argc, char** argv) {
    return {argv, argv + argc};
}

}  // namespace tessaro
