#include "encoding/engine/pipe_signal.hpp"

#include <cerrno>
#include <pthread.h>
#include <sys/stat.h>

namespace zeb::engine
{
namespace
{

sigset_t pipe_signal() noexcept
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

bool is_pending() noexcept
{
    sigset_t pending;
    return sigpending(&pending) == 0 && sigismember(&pending, SIGPIPE) == 1;
}

} // namespace

bool may_raise_pipe_signal(int descriptor) noexcept
{
    struct stat status;
    return fstat(descriptor, &status) == 0 && (S_ISFIFO(status.st_mode) || S_ISSOCK(status.st_mode));
}

void Without_Pipe_Signal::block() noexcept
{
    was_pending = is_pending();
    const sigset_t set = pipe_signal();
    pthread_sigmask(SIG_BLOCK, &set, &former);
}

void Without_Pipe_Signal::unblock() noexcept
{
    const int error = errno;
    const sigset_t set = pipe_signal();
    int taken;
    if (!was_pending && is_pending())
        sigwait(&set, &taken);
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
    errno = error;
}

} // namespace zeb::engine
