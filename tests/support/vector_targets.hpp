/// The vector instruction sets of this machine.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>

#if ZEB_HAS_HIGHWAY
#include <hwy/highway.h>
#endif

namespace zeb_test
{

/// Runs the test once for each vector instruction set of this machine.
template <class Test>
void on_each_target(Test test)
{
#if ZEB_HAS_HIGHWAY
    for (const int64_t target : hwy::SupportedAndGeneratedTargets()) {
        SCOPED_TRACE(hwy::TargetName(target));
        hwy::SetSupportedTargetsForTest(target);
        hwy::GetChosenTarget().Update(hwy::SupportedTargets());
        test();
    }
    hwy::SetSupportedTargetsForTest(0);
    hwy::GetChosenTarget().Update(hwy::SupportedTargets());
#else
    test();
#endif
}

} // namespace zeb_test
