/// Elements set aside while those of an array change.
#pragma once

#include "arrays/engine/vector_lifetime.hpp"

#include <span>

namespace zeb
{

/// A copy of a run of objects, or several copies one after the other, kept as the array keeps its own.
template <class Kind>
class Copied_Run
{
public:
    template <class Report>
    Copied_Run(Kind kind, std::span<typename Kind::Element const> run, Report report,
               std::uint32_t times = 1) noexcept
        : storage{data, count, marker, kind.fresh(state)}
    {
        const auto n = static_cast<std::uint32_t>(run.size());
        was_had = start(storage, n * times, n * times, report) == n * times;
        for (std::uint32_t i = 0; was_had && i < times; ++i) {
            was_had = kind.prepare(data + i * n, run.data(), n);
            if (was_had)
                kind.assign_shared(data + i * n, run.data(), n);
            else
                report(notes::allocate_failed);
        }
    }

    ~Copied_Run() { finish(storage); }

    Copied_Run(const Copied_Run &) = delete;
    Copied_Run &operator=(const Copied_Run &) = delete;

    bool is_had() const noexcept { return was_had; }
    std::span<typename Kind::Element const> get() const noexcept { return {data, count}; }

    /// The slots themselves: whatever is put there ends with the run.
    typename Kind::Element *slots() noexcept { return data; }

private:
    typename Kind::Element *data = nullptr;
    std::uint32_t count = 0;
    std::uint32_t marker = 0;
    typename Kind::Fresh state{};
    Vector_Storage<Kind> storage;
    bool was_had = false;
};

} // namespace zeb
