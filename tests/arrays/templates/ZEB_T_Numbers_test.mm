/// Statistics and the total order of TT_PHRASE, as the class offers them.
#include "tests/support/class_test.hpp"
#include "tests/support/memory.hpp"
#include "tests/support/samples.hpp"

#include <cmath>

namespace
{

/// 100 to 0.
ZEB_T_Array *countdown()
{
    ZEB_T_Array *const made = [ZEB_T_Array array_with_capacity:0];
    for (int number = 100; number >= 0; --number)
        [made append_TT_word:static_cast<ZEB_T_Element>(number)];
    return made;
}

ZEB_Double_Array *doubles(std::initializer_list<double> numbers)
{
    return [[[ZEB_Double_Array alloc] init_as_copy_of_doubles:numbers.begin()
                                                        count:static_cast<uint32_t>(numbers.size())]
        autorelease];
}

} // namespace

TEST(ZEB_T_Numbers, are_summed_parted_and_counted)
{
    ZEB_T_Array *const numbers = countdown();
    ZEB_T_Statistics all;
    [numbers get_TT_word_statistics:&all];
    EXPECT_EQ(all.sum, TT_SUM(5050));
    EXPECT_TRUE(all.mean == 50 && all.variance == 850 && all.sample_variance == 858.5);
    EXPECT_TRUE(all.number_count == 101 && all.nan_count == 0 && all.sum_is_cut == 0);
    ZEB_Double_Array *const parts = doubles({0, 0.255, 0.5, 1, -0.1, 1.1, std::nan("")});
    EXPECT_EQ([numbers get_quantiles:parts at_fractions:parts], 1);
    EXPECT_TRUE([parts isEqual:doubles({0, 25.5, 50, 100, NAN, NAN, NAN})]);
    ZEB_UInt_Array *const bins = support::indexes_of({7, 7, 7, 7});
    ZEB_Histogram_Rest rest;
    EXPECT_EQ([numbers count_in_bins:bins from:10 to:90 rest:&rest], 1);
    EXPECT_TRUE([bins isEqual:support::indexes_of({20, 20, 20, 21})]);
    EXPECT_TRUE(rest.below == 10 && rest.above == 10 && rest.nan_count == 0);
    EXPECT_EQ([numbers count_in_bins:bins from:0 to:1 rest:NULL], 1);
}

TEST(ZEB_T_Numbers, are_sorted_with_their_indexes)
{
    ZEB_T_Array *const numbers = countdown(), *const others = countdown();
    std::vector<uint32_t> marks(101, 7);
    ZEB_UInt_Array *const indexes = support::indexes_of(marks);
    [indexes set_uint:3 at_index:100];
    [numbers sort_by_total_order_with_permutation:support::indexes_of({1})];
    [numbers sort_by_total_order_with_permutation:nil];
    EXPECT_TRUE([numbers isEqual:others]);
    [numbers sort_by_total_order_with_permutation:indexes];
    [others sort_by_total_order];
    EXPECT_TRUE([numbers isEqual:others]);
    EXPECT_EQ([numbers first_TT_word], ZEB_T_Element(0));
    EXPECT_EQ([indexes first_uint], 3u);
}

TEST(ZEB_T_Numbers, stay_where_something_is_missing)
{
    ZEB_T_Array *const numbers = countdown();
    ZEB_Double_Array *const parts = doubles({0.5}), *const empty = doubles({});
    ZEB_UInt_Array *const bins = support::indexes_of({7}), *const marks = support::indexes_of(
                                                               std::vector<uint32_t>(101));
    ZEB_Histogram_Rest rest{7, 7, 7};
    for (const auto &[quantiles, fractions] : {std::pair(parts, empty), {parts, nil}, {nil, parts}})
        EXPECT_EQ([numbers get_quantiles:quantiles at_fractions:fractions], 0);
    for (ZEB_UInt_Array *unfit : {support::indexes_of({}), static_cast<ZEB_UInt_Array *>(nil)})
        EXPECT_EQ([numbers count_in_bins:unfit from:0 to:1 rest:&rest], 0);
    for (const double high : {1.0, HUGE_VAL})
        EXPECT_EQ([numbers count_in_bins:bins from:1 to:high rest:&rest], 0);
    const auto line_of = [](const char *selector, auto work) {
        support::memory.is_out = true;
        const std::string line = support::standard_error_of(work);
        support::memory.is_out = false;
        EXPECT_EQ(line, support::fix_line(selector, "ZEB_T_Array", "Runtime error in allocate macro"));
    };
    line_of("get_quantiles:at_fractions:", [&] { [numbers get_quantiles:parts at_fractions:parts]; });
    line_of("count_in_bins:from:to:rest:", [&] { [numbers count_in_bins:bins from:0 to:1 rest:&rest]; });
    line_of("sort_by_total_order_with_permutation:",
            [&] { [numbers sort_by_total_order_with_permutation:marks]; });
    EXPECT_TRUE([parts isEqual:doubles({0.5})] && [bins isEqual:support::indexes_of({7})]);
    EXPECT_TRUE([numbers isEqual:countdown()] && rest.above == 7);
}
