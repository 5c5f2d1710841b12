/// Lazy one-time start-up.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Runs `prepare` unless `done` is set. The flag is set first, so that a nested call does not run it again.
/// There is no lock: start-up must finish on one thread before concurrent use.
template <class Work>
inline void run_once(std::uint8_t &done, Work prepare)
{
    if (done != 0)
        return;
    done = 1;
    prepare();
}

} // namespace zeb::engine
