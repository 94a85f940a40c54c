#include "bench/child.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace tessaro::bench {
namespace {

pid_t startWithOutput(const std::vector<std::string>& arguments, int output) {
    std::vector<char*> pointers;
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    pid_t pid = 0;
    const int error = ::posix_spawn(&pid, pointers[0], &actions, nullptr, pointers.data(), environ);
    ::posix_spawn_file_actions_destroy(&actions);
    if (error != 0) throw std::runtime_error("cannot start " + arguments[0]);
    return pid;
}

std::string readToItsEnd(int file) {
    std::string text;
    char buffer[256];
    for (ssize_t size = 0; (size = ::read(file, buffer, sizeof buffer)) > 0;)
        text.append(buffer, static_cast<std::size_t>(size));
    return text;
}

}  // namespace

std::string outputOf(const std::vector<std::string>& arguments) {
    int ends[2] = {};
    if (::pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    const pid_t pid = startWithOutput(arguments, ends[1]);
    ::close(ends[1]);
    const std::string text = readToItsEnd(ends[0]);
    ::close(ends[0]);
    int status = 0;
    if (::waitpid(pid, &status, 0) != pid || status != 0)
        throw std::runtime_error(arguments[0] + " failed");
    return text;
}

}  // namespace tessaro::bench
