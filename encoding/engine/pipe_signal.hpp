/// Writing to a pipe that nobody reads.
#pragma once

#include <csignal>

namespace zeb::engine
{

/// Whether a write to an open file can raise SIGPIPE: it is a pipe or a socket.
bool may_raise_pipe_signal(int descriptor) noexcept;

/// Keeps SIGPIPE from this thread for its lifetime: a write to a pipe without a reader only fails. A signal
/// that was waiting before stays.
class Without_Pipe_Signal
{
public:
    Without_Pipe_Signal() noexcept;
    ~Without_Pipe_Signal();
    Without_Pipe_Signal(const Without_Pipe_Signal &) = delete;
    Without_Pipe_Signal &operator=(const Without_Pipe_Signal &) = delete;

private:
    sigset_t former;
    bool was_pending;
};

} // namespace zeb::engine
