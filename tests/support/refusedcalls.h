#pragma once

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>

namespace tessaro::test {

/// What a child of a test ends with where the system lacks what the test needs.
inline constexpr int notHere = 77;

/// From now on the system refuses a call to this process, root or not: with `error`, and if `bits`
/// are given only where the call's argument has them all. For forked children, since nothing takes
/// it back. Tells whether the system can do that.
inline bool refuseCall(long number, int error, std::size_t argument = 0, std::uint32_t bits = 0) {
    const auto part = [](std::size_t offset) { return static_cast<std::uint32_t>(offset); };
    const auto value = part(offsetof(seccomp_data, args) + argument * sizeof(std::uint64_t));
    sock_filter steps[] = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, part(offsetof(seccomp_data, nr))),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(number), 0, 4),
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, value),
        BPF_STMT(BPF_ALU | BPF_AND | BPF_K, bits),
        BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, bits, 0, 1),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | static_cast<std::uint32_t>(error)),
        BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program = {sizeof steps / sizeof steps[0], steps};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

}  // namespace tessaro::test
