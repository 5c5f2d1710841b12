#import <Korvane_ZEB/ZEB_Double_Array.h>
#import <Korvane_ZEB/ZEB_Retained.hpp>

#include <gtest/gtest.h>
#include <vector>

namespace
{

TEST(Retained, counts_one_reference_for_each)
{
    ZEB_Double_Array *const array = [[ZEB_Double_Array alloc] init];
    const NSUInteger mine = [array retainCount];
    {
        zeb::retained<ZEB_Double_Array> first(array);
        std::vector<zeb::retained<ZEB_Double_Array>> several(3, first);
        EXPECT_EQ([array retainCount], mine + 4);
        zeb::retained<ZEB_Double_Array> moved(std::move(several.back()));
        EXPECT_TRUE(!several.back() && moved == first);
        moved = *&moved; // to itself
        several[0] = nullptr;
        several.push_back(zeb::retained<ZEB_Double_Array>::adopt([array retain]));
        [several.back().get() append_double:2.5];
        EXPECT_EQ([array retainCount], mine + 4);
    }
    EXPECT_EQ([array retainCount], mine);
    EXPECT_EQ([array count], 1u);
    EXPECT_EQ(zeb::retained<ZEB_Double_Array>(nil).get(), nil);
    [array release];
}

} // namespace
