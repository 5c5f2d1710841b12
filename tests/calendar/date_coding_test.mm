#import <Korvane_ZEB/Korvane_ZEB.h>

#include <gtest/gtest.h>

namespace
{

ZEB_Date *date_of(ZEB_Gregorian_Date date, uint64_t second, uint64_t nanosecond)
{
    return [[[ZEB_Date alloc] init_with_date_and_time:date second:second nanosecond:nanosecond] autorelease];
}

void expect_same_fields(ZEB_Date *made, ZEB_Date *expected)
{
    EXPECT_EQ([made class], [expected class]);
    EXPECT_TRUE([made isEqual:expected]);
    EXPECT_EQ([made year], [expected year]);
    EXPECT_EQ([made month], [expected month]);
    EXPECT_EQ([made day], [expected day]);
}

/// An archive of what `encode` writes, without an object around it.
template <class Encode>
NSKeyedUnarchiver *archive_of(Encode encode)
{
    NSMutableData *const data = [NSMutableData data];
    NSKeyedArchiver *const archiver = [[NSKeyedArchiver alloc] initForWritingWithMutableData:data];
    encode(archiver);
    [archiver finishEncoding];
    [archiver release];
    return [[[NSKeyedUnarchiver alloc] initForReadingWithData:data] autorelease];
}

} // namespace

TEST(Date_Coding, dates_come_back_as_themselves_from_both_kinds_of_archive)
{
    ZEB_Date *const never_set = [[[ZEB_Date alloc] init] autorelease];
    ZEB_Date *const before_day_0 = [[[ZEB_Date alloc] init] autorelease];
    [before_day_0 set_julian_day:-5];
    ZEB_Date *const far_out = date_of({2147483647, 1, 31}, 0, 0);
    [far_out add_months_clamped:1];
    ZEB_Date *const dates[] = {date_of({2021, 3, 4}, 37230, 999999999),
                               date_of({1, 1, 1}, 86400, 0),
                               date_of({9999, 12, 31}, 4294967295u, 4294967295u),
                               date_of({2021, 2, 31}, 0, 0),
                               date_of({-5000, 1, 1}, 0, 0),
                               never_set,
                               before_day_0,
                               far_out};
    for (ZEB_Date *const date : dates) {
        NSData *const keyed = [NSKeyedArchiver archivedDataWithRootObject:date];
        expect_same_fields([NSKeyedUnarchiver unarchiveObjectWithData:keyed], date);
        NSData *const plain = [NSArchiver archivedDataWithRootObject:date];
        expect_same_fields([NSUnarchiver unarchiveObjectWithData:plain], date);
    }
}

TEST(Date_Coding, time_stamps_come_back_in_full)
{
    ZEB_Time_Stamp *const stamp = [[[ZEB_Time_Stamp alloc] init_with_time:UINT64_MAX
                                                               nanosecond:uint64_t{1} << 63] autorelease];
    NSData *const keyed = [NSKeyedArchiver archivedDataWithRootObject:stamp];
    EXPECT_TRUE([stamp isEqual:[NSKeyedUnarchiver unarchiveObjectWithData:keyed]]);
    NSData *const plain = [NSArchiver archivedDataWithRootObject:stamp];
    EXPECT_TRUE([stamp isEqual:[NSUnarchiver unarchiveObjectWithData:plain]]);
    ZEB_Time_Stamp *const none =
        [[[ZEB_Time_Stamp alloc] initWithCoder:archive_of([](NSCoder *) {})] autorelease];
    EXPECT_EQ([none time_value].second, 0u);
}

TEST(Date_Coding, decoding_cuts_times_to_32_bits_and_brings_dates_into_range)
{
    ZEB_Date *const date = date_of({2021, 2, 31}, (uint64_t{1} << 32) + 7, (uint64_t{5} << 32) + 9);
    NSCoder *const archive = archive_of([=](NSCoder *coder) { [date encode:coder]; });
    ZEB_Date *const target = date_of({1, 1, 1}, 0, 0);
    [target decode:archive];
    expect_same_fields(target, date_of({2021, 3, 3}, 7, 9));
    // Five values alone make a date too; its day number is computed.
    expect_same_fields([[[ZEB_Date alloc] initWithCoder:archive] autorelease], date_of({2021, 2, 31}, 7, 9));
}

TEST(Date_Coding, missing_values_leave_what_stands)
{
    ZEB_Date *const date = date_of({2021, 3, 4}, 5, 6);
    [date decode:archive_of([](NSCoder *coder) { [coder encodeInt32:1 forKey:@"another"]; })];
    expect_same_fields(date, date_of({2021, 3, 4}, 5, 6));
    [date decode:nil];
    expect_same_fields(date, date_of({2021, 3, 4}, 5, 6));

    ZEB_Date *const target = date_of({1999, 9, 9}, 1, 1);
    [target decode:archive_of([=](NSCoder *coder) { [date encode:coder]; })];
    expect_same_fields(target, date);
}
