/// 8-bit text to 32-bit text and back, through the converters and through the platform alone.
#include "benchmarks/strings/string_rows.hpp"

#import <Korvane_ZEB/Korvane_ZEB.h>

#if ZEB_HAS_QT
#include <QString>
#endif

namespace zeb_bench
{
namespace
{

constexpr std::size_t long_text = std::size_t{4} << 20;
constexpr std::size_t short_text = 24;

/// `length` bytes or a few more of a repeated piece of text.
std::string repeated(const std::string &piece, std::size_t length)
{
    std::string text;
    while (text.size() < length)
        text += piece;
    return text;
}

ZEB_String *string_of(const std::string &text)
{
    return [[ZEB_String alloc] init_as_copy_of_chars:text.data() count:static_cast<uint32_t>(text.size())];
}

/// The required chain of platform calls, as it reads.
void decode_by_platform(ZEB_String *from, ZEB_Wide_String *to)
{
    NSData *const bytes = [[NSData alloc] initWithBytes:[from char_data] length:[from count]];
    NSString *const text = [[NSString alloc] initWithData:bytes encoding:NSUTF8StringEncoding];
    [to set_from_NSString:text];
    [text release];
    [bytes release];
}

void encode_by_platform(ZEB_Wide_String *from, ZEB_String *to)
{
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    [to set_from_NSString:[from NSString_value] type:ZEB_ENCODING_UTF8];
    [pool drain];
}

template <class Work>
auto times(std::size_t n, Work work)
{
    return [=] {
        for (std::size_t i = 0; i < n; ++i)
            work();
        benchmark::ClobberMemory();
    };
}

void add_rows(const std::string &name, const std::string &utf8, double goal)
{
    ZEB_String *const chars = string_of(utf8);
    ZEB_Wide_String *const wide = [[ZEB_Wide_String alloc] init];
    ZEB_String *const back = [[ZEB_String alloc] init];
    ZEB_Wide_String_Converter *const to_wide = [[ZEB_Wide_String_Converter alloc] init];
    ZEB_String_Converter *const to_chars = [[ZEB_String_Converter alloc] init];
    [to_wide set_target:wide];
    [to_chars set_target:back];
    [to_wide set_from_string:chars];
    const std::size_t n = utf8.size() < 1024 ? 1000 : 1;
    const double amount = static_cast<double>(utf8.size() * n);
    Row decoding("8-bit to 32-bit, " + name, Measure::Bytes, amount);
    decoding.goal_over("platform", goal)
        .framework(times(n, [=] { [to_wide set_from_string:chars]; }))
        .peer("platform", times(n, [=] { decode_by_platform(chars, wide); }));
    Row encoding("32-bit to 8-bit, " + name, Measure::Bytes, amount);
    encoding.goal_over("platform", goal)
        .framework(times(n, [=] { [to_chars set_from_wide_string:wide]; }))
        .peer("platform", times(n, [=] { encode_by_platform(wide, back); }));
#if ZEB_HAS_QT
    const QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
    decoding.peer("QString::fromUtf8", times(n, [=] {
                      benchmark::DoNotOptimize(QString::fromUtf8(utf8.data(), qsizetype(utf8.size())));
                  }));
    encoding.peer("QString::toUtf8", times(n, [=] { benchmark::DoNotOptimize(text.toUtf8()); }));
#endif
}

void add_widening_row(std::size_t bytes)
{
    ZEB_Wide_String *const wide = [[ZEB_Wide_String alloc] init];
    const auto *const text = new std::string(words(bytes));
    auto *const room = new std::uint32_t[bytes];
    const std::size_t n = (1 << 20) / bytes;
    Row("widen bytes, " + std::to_string(bytes >> 10) + " KiB", Measure::Bytes,
        static_cast<double>(bytes * n))
        .limit_goal(0.9)
        .framework(times(n, [=] { [wide copy_c_string:text->data() length:static_cast<uint32_t>(bytes)]; }))
        .limit("compiled loop", times(n, [=] { compiled_widening(text->data(), bytes, room); }));
}

} // namespace

void add_conversion_rows()
{
    const std::string latin = "\xC3\xA9t\xC3\xA9 \xC3\xB6l \xC3\xBC\xC3\xB1 \xD0\xBC\xD0\xB8\xD1\x80 ";
    const std::string three = "\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x81\xAE";
    add_rows("ASCII, 4 MiB", words(long_text), 4);
    add_rows("two-byte text, 4 MiB", repeated(latin, long_text), 2);
    add_rows("three-byte text, 4 MiB", repeated(three, long_text), 2);
    add_rows("24 characters of ASCII", words(short_text), 5);
    add_rows("24 characters of two bytes", repeated("\xD0\xBC\xD1\x80", 2 * short_text), 5);
    for (const std::size_t bytes : {1 << 10, 16 << 10, 1 << 20})
        add_widening_row(bytes);
}

} // namespace zeb_bench
