#include "platform/posix/posixprocesses.h"

#include <fcntl.h>

#include <array>
#include <string_view>

#include "platform/posix/descriptor.h"
#include "platform/runtime/runtimeerror.h"

namespace tessaro {

namespace {

// Long enough to cost nothing, short enough for a window to look alive.
constexpr std::chrono::milliseconds betweenRepaints{20};

// A program for Windows begins with these two letters.
constexpr std::string_view windowsMark = "MZ";

// A program that may be started but not read is none of Wine's.
bool isForWindows(const HostPath& program) {
    std::array<char, windowsMark.size()> start = {};
    attempt([&] { Descriptor(program, O_RDONLY | O_NONBLOCK).read(start.data(), start.size()); });
    return std::string_view(start.data(), start.size()) == windowsMark;
}

}  // namespace

std::unique_ptr<Processes> makeProcesses(Host& host, const DriveMap& drives,
                                         std::function<void()> whileRunning) {
    return std::make_unique<PosixProcesses>(host, drives, std::move(whileRunning));
}

void PosixProcesses::run(const std::string& commandLine, Visibility visibility) {
    auto child = start(splitCommandLine(commandLine), visibility);
    while (child && !child->endedWithin(betweenRepaints)) whileRunning_();
}

std::optional<ChildProcess> PosixProcesses::start(const CommandLine& line, Visibility visibility) {
    std::vector<std::string> arguments;
    if (!attempt([&] { arguments = hostArguments(line); })) return std::nullopt;
    return ChildProcess::start(arguments, visibility);
}

std::vector<std::string> PosixProcesses::hostArguments(const CommandLine& line) {
    const HostPath program = hostProgram(line.program);
    std::vector<std::string> arguments;
    if (isForWindows(program)) {
        arguments = {"wine", line.program};
        arguments.insert(arguments.end(), line.arguments.begin(), line.arguments.end());
        return arguments;
    }
    arguments.push_back(program.native());
    for (const std::string& argument : line.arguments) arguments.push_back(hostArgument(argument));
    return arguments;
}

HostPath PosixProcesses::hostProgram(const std::string& program) {
    // A new one stands in the folder where the process is now.
    return paths_.toHost(Paths(host_, drives_).absolute(program));
}

std::string PosixProcesses::hostArgument(const std::string& argument) {
    std::string translated = argument;
    if (isFullGamePath(argument)) attempt([&] { translated = paths_.toHost(argument).native(); });
    return translated;
}

}  // namespace tessaro
