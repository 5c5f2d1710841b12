/// Writing to a pipe that nobody reads.
#pragma once

#include <csignal>

namespace zeb::engine
{

/// Whether a write to an open file can raise SIGPIPE: it is a pipe or a socket.
bool may_raise_pipe_signal(int descriptor) noexcept;

/// Keeps SIGPIPE from this thread for its lifetime, if `may_raise` is set: a write to a pipe without a reader
/// only fails. A signal that was waiting before stays.
class Without_Pipe_Signal
{
public:
    explicit Without_Pipe_Signal(bool may_raise) noexcept : is_blocking(may_raise)
    {
        if (is_blocking)
            block();
    }
    ~Without_Pipe_Signal()
    {
        if (is_blocking)
            unblock();
    }
    Without_Pipe_Signal(const Without_Pipe_Signal &) = delete;
    Without_Pipe_Signal &operator=(const Without_Pipe_Signal &) = delete;

private:
    void block() noexcept;
    void unblock() noexcept;

    bool is_blocking;
    bool was_pending;
    sigset_t former;
};

} // namespace zeb::engine
