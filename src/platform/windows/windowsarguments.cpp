#include <windows.h>

// After it, whose names it uses.
#include <shellapi.h>

#include <memory>

#include "platform/outside/arguments.h"
#include "platform/windows/widetext.h"

namespace tessaro {

// `main` gets them in a code page, which need not have all of their letters.
std::vector<std::string> programArguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    const std::unique_ptr<LPWSTR, HLOCAL (*)(HLOCAL)> all(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), ::LocalFree);
    std::vector<std::string> arguments;
    for (int i = 0; all && i < count; ++i)
        arguments.push_back(fromWide(all.get()[i]).value_or(std::string()));
    return arguments;
}

}  // namespace tessaro
