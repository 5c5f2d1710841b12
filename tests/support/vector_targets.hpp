/// The vector instruction sets of this machine.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#if ZEB_HAS_HIGHWAY
#include <hwy/highway.h>
#endif

namespace zeb_test
{

#if ZEB_HAS_HIGHWAY
inline size_t target_count() { return hwy::SupportedAndGeneratedTargets().size(); }

inline void choose_target(int64_t target)
{
    hwy::SetSupportedTargetsForTest(target);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
}

/// Runs the test with one of the vector instruction sets.
template <class Test>
void on_target(size_t number, Test test)
{
    hwy::SetSupportedTargetsForTest(0);
    const int64_t target = hwy::SupportedAndGeneratedTargets()[number];
    SCOPED_TRACE(hwy::TargetName(target));
    choose_target(target);
    test();
    choose_target(0);
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
