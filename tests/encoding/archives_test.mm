/// Archives of values: what they hold, in both byte orders, and what is refused of forged ones.
#include "tests/support/archives.hpp"
#include "tests/support/class_test.hpp"
#include "tests/support/samples.hpp"
#include "tests/support/sanitizer.hpp"

#include "core/engine/namespace.hpp"
#include "core/engine/platform_call.hpp"

#include <cmath>
#include <random>

namespace
{

using Writer = std::function<void(NSCoder *)>;

Writer forgery;

} // namespace

/// Writes what a test wants to see read by another class.
@interface Forger : NSObject <NSCoding>
@end

@implementation Forger
- (void)encodeWithCoder:(NSCoder *)coder
{
    forgery(coder);
}
- (id)initWithCoder:(NSCoder *)coder
{
    return self;
}
@end

/// Keeps nothing, and does not say so.
@interface Uncoded : NSObject
@end

@implementation Uncoded
@end

/// An object, and a text after it.
@interface Pair : NSObject <NSCoding> {
@public
    id first;
    id second;
}
@end

@implementation Pair
- (void)encodeWithCoder:(NSCoder *)coder
{
    [coder encodeObject:first];
    [coder encodeObject:@"second"];
}
- (id)initWithCoder:(NSCoder *)coder
{
    first = [coder decodeObject];
    second = [coder decodeObject];
    return self;
}
@end

/// Refuses to come back.
@interface Shy : NSObject <NSCoding>
@end

@implementation Shy
- (void)encodeWithCoder:(NSCoder *)coder
{
}
- (id)initWithCoder:(NSCoder *)coder
{
    [self release];
    return nil;
}
@end

namespace
{

/// An archive of an object of a class that `writer` wrote in its place.
NSData *forged(NSString *named, bool keyed, const Writer &writer)
{
    forgery = writer;
    NSMutableData *const data = [NSMutableData data];
    Forger *const forger = [[[Forger alloc] init] autorelease];
    if (keyed) {
        NSKeyedArchiver *const archiver =
            [[[NSKeyedArchiver alloc] initForWritingWithMutableData:data] autorelease];
        [archiver setClassName:named forClass:[Forger class]];
        [archiver encodeObject:forger forKey:@"root"];
        [archiver finishEncoding];
    } else {
        NSArchiver *const archiver = [[[NSArchiver alloc] initForWritingWithMutableData:data] autorelease];
        [archiver encodeClassName:@"Forger" intoClassName:named];
        [archiver encodeRootObject:forger];
    }
    return data;
}

/// Bytes as a coder gets them for arrays and strings.
Writer bytes_under(NSString *key, const std::string &contents)
{
    return [=](NSCoder *coder) {
        const auto count = static_cast<int64_t>(contents.size());
        if ([coder allowsKeyedCoding])
            return [coder encodeBytes:reinterpret_cast<const uint8_t *>(contents.data())
                               length:contents.size()
                               forKey:key];
        [coder encodeValueOfObjCType:@encode(int64_t) at:&count];
        [coder encodeArrayOfObjCType:@encode(char) count:contents.size() at:contents.data()];
    };
}

void put_integer(NSCoder *coder, NSString *key, int64_t value)
{
    if ([coder allowsKeyedCoding])
        [coder encodeInt64:value forKey:key];
    else
        [coder encodeValueOfObjCType:@encode(int64_t) at:&value];
}

constexpr char incomplete[] =
    "Archive lacks a value or has another kind of value in its place, no object made.";
constexpr char foreign[] = "Archived contents do not begin with the binary header, no object made.";
constexpr char truncated[] = "Binary contents are truncated, no decode performed.";
constexpr char tail[] = "Archived contents go on after their end, no object made.";

void expect_refused(NSString *named, bool keyed, const Writer &writer, const std::string &note)
{
    SCOPED_TRACE(std::string([named UTF8String]) + (keyed ? " with keys" : " in order"));
    NSData *const data = forged(named, keyed, writer);
    id made = data;
    EXPECT_EQ(standard_error_of([&] { made = unarchived(data, keyed); }),
              fix_line("initWithCoder:", [named UTF8String], note));
    EXPECT_EQ(made, nil);
}

std::string record_of(id object)
{
    NSUInteger length = 0;
    const void *const bytes =
        [archive_of([=](NSCoder *coder) { [object encodeWithCoder:coder]; }) decodeBytesForKey:@"ZEB_record"
                                                                                returnedLength:&length];
    return {static_cast<const char *>(bytes), length};
}

ZEB_Object_Array *objects(std::initializer_list<id> given)
{
    ZEB_Object_Array *const made = [ZEB_Object_Array array_with_capacity:0];
    for (const id each : given)
        [made append_object:each];
    return made;
}

} // namespace

TEST(Archives, of_machines_of_either_byte_order_are_read)
{
    for (const bool swapped : {false, true})
        for (const bool keyed : {false, true}) {
            const auto back = [=](NSString *named, const std::string &record) {
                return unarchived(forged(named, keyed, bytes_under(@"ZEB_record", header(swapped) + record)),
                                  keyed);
            };
            EXPECT_TRUE([back(@"ZEB_UInt_Array", words({3, 7, 0, UINT32_MAX}, swapped))
                isEqual:support::indexes_of({7, 0, UINT32_MAX})]);
            ZEB_Wide_String_Array *const strings =
                back(@"ZEB_Wide_String_Array", words({2, 0, 3, 'a', 0x1F600, 'b'}, swapped));
            ASSERT_EQ([strings count], 2u);
            EXPECT_TRUE([[strings wide_string_at_index:1] isEqual:wide_text(U"a\U0001F600b")]);
            ZEB_String_Array *const texts = back(@"ZEB_String_Array", words({1, 4}, swapped) + "text");
            EXPECT_EQ(text_of([texts first_string]), "text");
        }
}

TEST(Archives, that_are_forged_are_refused_with_one_line)
{
    const std::string uints = header() + words({2, 7, 8});
    std::string other_marker = uints;
    other_marker[32] ^= 1;
    const struct {
        NSString *named;
        std::string contents;
        const char *note;
    } records[] = {
        {@"ZEB_UInt_Array", "", incomplete},
        {@"ZEB_UInt_Vector", std::string(64, 'x') + words({0}), foreign},
        {@"ZEB_UInt_Array", header().substr(0, 63), foreign},
        {@"ZEB_UInt_Array", other_marker, foreign},
        {@"ZEB_UInt_Array", header(), truncated},
        {@"ZEB_UInt_Vector", uints.substr(0, uints.size() - 1), truncated},
        {@"ZEB_UInt_Array", header() + words({0xFFFFFFFF, 7}), truncated},
        {@"ZEB_Double_Array", header() + words({0x20000000, 7}), truncated}, // 2^32 bytes and more
        {@"ZEB_UInt_Array", header(true) + words({2, 7, 8}), truncated},
        {@"ZEB_UInt_Array", uints + "x", tail},
        {@"ZEB_String_Array", header() + words({0xFFFFFFFF, 0}), truncated},
        {@"ZEB_Byte_Array_Vector", header() + words({2, 1}) + "x" + words({5}), truncated},
        {@"ZEB_String", header() + words({1}) + "xy", tail},
        {@"ZEB_Pointer_Array", header() + words({0}),
         "Addresses mean nothing in an archive, no object made."},
    };
    for (const bool keyed : {false, true})
        for (const auto &row : records)
            expect_refused(row.named, keyed, bytes_under(@"ZEB_record", row.contents), row.note);

    const auto nothing = [](NSCoder *) {};
    const auto number = [](NSCoder *coder) { [coder encodeInt64:5 forKey:@"ZEB_record"]; };
    const auto other_key = bytes_under(@"record", uints);
    for (const Writer &writer : {Writer(nothing), Writer(number), other_key})
        for (NSString *const named : {@"ZEB_Int_Array", @"ZEB_Wide_String", @"ZEB_Object_Array",
                                      @"ZEB_Number_Format", @"ZEB_Message_Text"})
            expect_refused(named, true, writer, incomplete);
    // What ends too early, and another type in the place of a count.
    const auto double_first = [](NSCoder *coder) {
        const double value = 4;
        [coder encodeValueOfObjCType:@encode(double) at:&value];
    };
    for (const Writer &writer : {Writer(nothing), Writer(double_first),
                                 Writer([](NSCoder *coder) { put_integer(coder, nil, 1000000000); }),
                                 Writer([](NSCoder *coder) { put_integer(coder, nil, -1); })})
        for (NSString *const named : {@"ZEB_Float_Array", @"ZEB_String_Vector", @"ZEB_Object_Array",
                                      @"ZEB_Number_Format", @"ZEB_Message_Text"})
            expect_refused(named, false, writer, incomplete);
    for (NSString *const named : {@"ZEB_Date", @"ZEB_Time_Stamp"}) {
        NSString *const key = [named isEqual:@"ZEB_Date"] ? @"ZEB_date_day" : @"ZEB_time_stamp_second";
        expect_refused(named, true, bytes_under(key, "x"), incomplete);
        expect_refused(named, false, nothing, incomplete);
    }
}

TEST(Archives, with_any_record_give_what_is_archived_alike_or_nothing)
{
    ZEB_String_Array *const source = [ZEB_String_Array array_with_capacity:0];
    for (const char *const each : {"", "one", "twenty-seven", "x"})
        [source append_string:text(each)];
    const std::string whole = record_of(source);
    std::mt19937 random(5);
    unsigned made = 0;
    for (int turn = 0; turn < 400; ++turn) {
        std::string spoiled = whole;
        for (uint32_t changes = random() % 3; changes > 0; --changes)
            spoiled[64 + random() % (spoiled.size() - 64)] = static_cast<char>(random() % 4);
        spoiled.resize(random() % 3 == 0 ? random() % spoiled.size() : spoiled.size());
        id back = nil;
        const auto archive = archive_of(bytes_under(@"ZEB_record", spoiled));
        const std::string lines =
            standard_error_of([&] { back = [[[ZEB_String_Array alloc] initWithCoder:archive] autorelease]; });
        EXPECT_EQ(std::ranges::count(lines, '\n'), back == nil ? 1 : 0);
        if (back != nil) {
            EXPECT_EQ(record_of(back), spoiled);
        }
        made += back != nil;
    }
    EXPECT_GT(made, 50u);
    EXPECT_LT(made, 350u);
}

TEST(Archives, that_are_cut_in_order_never_give_another_object)
{
    ZEB_String *const longer_than_a_piece = text(std::string(70000, 'z'));
    for (const id whole :
         {static_cast<id>(support::indexes_of({1, 2, 3})), static_cast<id>(objects({@"a", nil, @"b"})),
          static_cast<id>(longer_than_a_piece)}) {
        NSData *const data = archive(whole, false);
        const NSUInteger step = [data length] > 1000 ? 9973 : 1;
        EXPECT_TRUE([unarchived(data, false) isEqual:whole] ||
                    [whole isKindOfClass:[ZEB_Object_Array class]]);
        for (NSUInteger length = 0; length < [data length]; length += step) {
            const Leaks_Unwatched unwatched;
            id back = nil;
            standard_error_of([&] {
                engine::runs_through(
                    [&] { back = unarchived([data subdataWithRange:NSMakeRange(0, length)], false); });
            });
            EXPECT_EQ(back, nil) << length;
        }
    }
}

TEST(Archives, of_objects_keep_them_and_their_ownership)
{
    NSNumber *const number = [NSNumber numberWithInt:7];
    for (const bool keyed : {false, true})
        for (const uint32_t mode : {ZEB_OWNERSHIP_BORROWS, ZEB_OWNERSHIP_ADOPTS, ZEB_OWNERSHIP_RETAINS}) {
            ZEB_Object_Array *const inner = objects({support::indexes_of({1, 2})});
            ZEB_Object_Array *const source = objects({@"text", nil, number, [NSNull null], inner, @"text"});
            ZEB_Object_Vector *const link = [ZEB_Object_Array link_to_objects:[source object_data] count:6];
            [link set_ownership_mode:mode];
            ZEB_Object_Array *back;
            {
                NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
                back = [archived(link, keyed) retain];
                [pool drain];
            }
            // Nobody else owns them now.
            ASSERT_EQ([back count], 6u);
            EXPECT_EQ([back ownership_mode], mode == 0 ? 2 : mode);
            EXPECT_TRUE([[back object_at_index:0] isEqual:@"text"] &&
                        [[back object_at_index:2] isEqual:number]);
            EXPECT_EQ([back object_at_index:1], nil);
            EXPECT_EQ([back object_at_index:3], [NSNull null]);
            EXPECT_EQ([back object_at_index:0], [back object_at_index:5]);
            EXPECT_TRUE([[[back object_at_index:4] first_object] isEqual:support::indexes_of({1, 2})]);
            [back release];
        }
}

TEST(Archives, of_objects_are_whole_or_refused)
{
    Uncoded *const uncoded = [[[Uncoded alloc] init] autorelease];
    Shy *const shy = [[[Shy alloc] init] autorelease];
    for (const bool keyed : {false, true}) {
        id back = uncoded;
        const std::string not_archived = fix_line("encodeWithCoder:", "ZEB_Object_Array",
                                                  "An element does not adopt NSCoding, none archived.");
        const std::string lines = standard_error_of([&] {
            back = archived(objects({@"a", uncoded}), keyed);
        });
        // An archiver without keys goes through its objects twice.
        EXPECT_EQ(lines, (keyed ? "" : not_archived) + not_archived +
                             fix_line("initWithCoder:", "ZEB_Object_Array", incomplete));
        EXPECT_EQ(back, nil);
        EXPECT_EQ(standard_error_of([&] {
                      back = archived(objects({@"a", nil, shy}), keyed);
                  }),
                  fix_line("initWithCoder:", "ZEB_Object_Array", incomplete));
        EXPECT_EQ(back, nil);
        const auto counts = [](int64_t count, int64_t nils, int64_t mode) {
            return [=](NSCoder *coder) {
                put_integer(coder, @"ZEB_object_count", count);
                put_integer(coder, @"ZEB_nil_count", nils);
                put_integer(coder, @"ZEB_ownership_mode", mode);
            };
        };
        for (const auto &writer : {counts(4294967295, 0, 2), counts(int64_t{1} << 32, 0, 2), counts(0, 1, 2),
                                   counts(-1, 0, 2), counts(0, 0, -2)})
            expect_refused(@"ZEB_Object_Array", keyed, writer, incomplete);
    }
    // What follows a refused array stays in its place.
    for (const id refused :
         {static_cast<id>(objects({uncoded})), static_cast<id>([ZEB_Pointer_Array array_with_capacity:0])}) {
        Pair *const pair = [[[Pair alloc] init] autorelease];
        pair->first = refused;
        Pair *back = nil;
        standard_error_of([&] { back = archived(pair, false); });
        EXPECT_EQ(back->first, nil);
        EXPECT_TRUE([back->second isEqual:@"second"]);
    }
    // A class that is not there.
    expect_refused(
        @"ZEB_Object_Vector", true,
        [](NSCoder *coder) {
            put_integer(coder, @"ZEB_object_count", 1);
            put_integer(coder, @"ZEB_nil_count", 0);
            [static_cast<NSKeyedArchiver *>(coder) setClassName:@"No_Such_Class" forClass:[Shy class]];
            [coder encodeObject:[[[Shy alloc] init] autorelease] forKey:@"ZEB_object_0"];
        },
        incomplete);
}

TEST(Archives, of_formats_and_messages_keep_every_field)
{
    ZEB_Number_Format *const format = [[[ZEB_Number_Format alloc] init] autorelease];
    [format set_precision:UINT32_MAX];
    [format set_exponent_base:1.7976931348623157e308];
    [format set_zero_reference:-0.0];
    [format set_result_kind:3];
    [format set_error_code:201];
    [format set_range:ZEB_Index_Range{4, UINT32_MAX}];
    [format set_text:wide_text(U"1.5 10\U0001D7D8")];
    ZEB_Message_Text *const message = [[[ZEB_Message_Text alloc] init] autorelease];
    [message set_from_string:text("gr\xC3\xBC\xC3\x9F")];
    ZEB_Message_Text *const without = [[[ZEB_Message_Text alloc] init] autorelease];
    [without set_text:nil];
    EXPECT_TRUE([ZEB_Number_Format supportsSecureCoding] && [ZEB_Message_Text supportsSecureCoding]);
    for (const bool keyed : {false, true}) {
        ZEB_Number_Format *const back = archived(format, keyed);
        EXPECT_EQ([back precision], UINT32_MAX);
        EXPECT_EQ([back exponent_base], [format exponent_base]);
        EXPECT_TRUE([back zero_reference] == 0 && std::signbit([back zero_reference]));
        EXPECT_TRUE([back result_kind] == 3 && [back error_code] == 201);
        EXPECT_TRUE([back range].start == 4 && [back range].end == UINT32_MAX);
        EXPECT_TRUE([[back text] isEqual:[format text]]);
        [back format_value:0];
        EXPECT_EQ([[back text] count], [[format text] count] + 1);
        EXPECT_TRUE([archived(message, keyed) isEqual:message]);
        EXPECT_TRUE([[archived(without, keyed) text] is_empty]);
    }
    // Whole but for one number that does not fit.
    const auto fields = [](int64_t end) {
        return [=](NSCoder *coder) {
            for (NSString *const key : {@"ZEB_precision", @"ZEB_result_kind", @"ZEB_error_code",
                                        @"ZEB_range_start", @"ZEB_exponent_base", @"ZEB_zero_reference"})
                put_integer(coder, key, 7);
            put_integer(coder, @"ZEB_range_end", end);
            bytes_under(@"ZEB_text", header() + words({0}))(coder);
        };
    };
    EXPECT_NE(unarchived(forged(@"ZEB_Number_Format", true, fields(UINT32_MAX)), true), nil);
    expect_refused(@"ZEB_Number_Format", true, fields(int64_t{1} << 32), incomplete);
}
