/// Work in a process of its own, which may give up rights, be limited or be killed.
#pragma once

#include <cstdio>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support
{

/// Starts the work. The process ends with 1 if it has failed, with 0 if not.
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

template <class Work>
int in_child(Work work)
{
    return end_of_child(start_child(work));
}

} // namespace support
