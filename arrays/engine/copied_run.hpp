/// Elements set aside while those of an array change.
#pragma once

#include "arrays/engine/vector_lifetime.hpp"

#include <span>

namespace zeb
{

/// A copy of a run of objects, kept as the array keeps its own.
template <class Kind>
class Copied_Run
{
public:
    template <class Report>
    Copied_Run(Kind kind, std::span<typename Kind::Element const> run, Report report) noexcept
        : storage{data, count, marker, kind.fresh(state)}
    {
        const auto n = static_cast<std::uint32_t>(run.size());
        was_had = start_as_copy(storage, Source::of_another_array, run.data(), n, n, report) == n;
    }

    ~Copied_Run() { finish(storage); }

    Copied_Run(const Copied_Run &) = delete;
    Copied_Run &operator=(const Copied_Run &) = delete;

    bool is_had() const noexcept { return was_had; }
    std::span<typename Kind::Element const> get() const noexcept { return {data, count}; }

private:
    typename Kind::Element *data = nullptr;
    std::uint32_t count = 0;
    std::uint32_t marker = 0;
    typename Kind::Fresh state{};
    Vector_Storage<Kind> storage;
    bool was_had = false;
};

} // namespace zeb
