/// The pattern of a lazy one-time start-up.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Runs `prepare` unless `done` is set. The flag is set before the work, so that work which comes back
/// here does not run twice. No lock: start-up is finished on one thread before concurrent use.
template <class Work>
inline void run_once(std::uint8_t &done, Work prepare)
{
    if (done != 0)
        return;
    done = 1;
    prepare();
}

} // namespace zeb::engine
