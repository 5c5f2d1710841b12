/// The vector instruction sets of this machine.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <vector>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"

#include <hwy/highway.h>
#endif

namespace zeb_test
{

#if ZEB_HAS_HIGHWAY
/// Asked once: a virtual machine may be slow to say what its processor can do.
inline const std::vector<int64_t> &targets()
{
    static const std::vector<int64_t> all = hwy::SupportedAndGeneratedTargets();
    return all;
}

inline size_t target_count() { return targets().size(); }

/// Lets kernels take these targets alone.
inline void choose_targets(int64_t mask)
{
    hwy::SetSupportedTargetsForTest(mask);
    hwy::GetChosenTarget().Update(mask);
}

/// Runs the test with one of the vector instruction sets.
template <class Test>
void on_target(size_t number, Test test)
{
    static const int64_t all_of_them = hwy::SupportedTargets();
    SCOPED_TRACE(hwy::TargetName(targets()[number]));
    choose_targets(targets()[number]);
    test();
    choose_targets(all_of_them);
}
#else
inline size_t target_count() { return 1; }

template <class Test>
void on_target(size_t, Test test)
{
    test();
}
#endif

/// Runs the test once with each of them.
template <class Test>
void on_each_target(Test test)
{
    for (size_t number = 0; number < target_count(); ++number)
        on_target(number, test);
}

} // namespace zeb_test
