/// Work in a process of its own, which may give up rights, be limited or be killed.
#pragma once

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support
{

/// The process ends with 1 if the work fails, with 0 if not.
template <class Work>
pid_t start_child(Work work)
{
    std::fflush(stdout);
    const pid_t child = fork();
    if (child != 0)
        return child;
    work();
    std::fflush(stdout);
    _exit(testing::Test::HasFailure() ? 1 : 0);
}

inline int end_of_child(pid_t child)
{
    int status = -1;
    waitpid(child, &status, 0);
    return status;
}

} // namespace support
