/// Splitting, joining and trimming text, its last occurrence, and the shortest text of numbers.
#include "benchmarks/strings/string_rows.hpp"

#import <Korvane_ZEB/Korvane_ZEB.h>
#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include "numbers/engine/shortest_text.hpp"

#include <charconv>
#include <cstring>
#include <random>
#include <string_view>
#include <vector>

#if ZEB_HAS_QT
#include <QByteArray>
#include <QByteArrayList>
#include <QString>
#include <QStringList>
#endif

namespace zeb_bench
{
namespace
{

constexpr std::size_t text_size = std::size_t{1} << 20;

ZEB_String *string_of(const std::string &text)
{
    return [[ZEB_String alloc] init_as_copy_of_chars:text.data() count:static_cast<uint32_t>(text.size())];
}

ZEB_Wide_String *wide_string_of(const std::string &text)
{
    return [[ZEB_Wide_String alloc] init_with_c_string:text.c_str()];
}

/// Fields of `length` characters on average, and commas.
std::string fields(std::size_t length)
{
    std::mt19937 random(1);
    std::string text;
    while (text.size() < text_size) {
        text.append(length / 2 + random() % (length + 1), 'x');
        text += ',';
    }
    return text;
}

void add_splitting_rows(std::size_t length)
{
    const std::string text = fields(length);
    const std::string name = "fields of " + std::to_string(length);
    const auto count = static_cast<double>(std::count(text.begin(), text.end(), ',') + 1);
    ZEB_String *const whole = string_of(text), *const comma = string_of(","), *const joined = string_of("");
    ZEB_Wide_String *const wide = wide_string_of(text), *const wide_comma = wide_string_of(","),
                           *const wide_joined = wide_string_of("");
    ZEB_String_Array *const pieces = [[ZEB_String_Array alloc] init];
    ZEB_Wide_String_Array *const wide_pieces = [[ZEB_Wide_String_Array alloc] init];
    [whole split_by_char:',' into:pieces];
    [wide split_by_wide_char:',' into:wide_pieces];
    Row split("split, " + name, Measure::Items, count),
        fresh("split into a new array, " + name, Measure::Items, count),
        join("join, " + name, Measure::Items, count),
        wide_split("split 32-bit, " + name, Measure::Items, count),
        wide_join("join 32-bit, " + name, Measure::Items, count);
    split.framework([=] { return [whole split_by_char:',' into:pieces]; }).goal(2);
    fresh.framework([=] {
        ZEB_String_Array *const made = [[ZEB_String_Array alloc] init];
        [whole split_by_char:',' into:made];
        [made release];
    });
    join.framework([=] { [joined join_strings:pieces separator:comma]; }).goal(2);
    wide_split.framework([=] { return [wide split_by_wide_char:',' into:wide_pieces]; }).goal(2);
    wide_join.framework([=] { [wide_joined join_strings:wide_pieces separator:wide_comma]; }).goal(2);
#if ZEB_HAS_QT
    const QByteArray bytes(text.data(), qsizetype(text.size()));
    const QString string = QString::fromUtf8(bytes);
    const QByteArrayList byte_pieces = bytes.split(',');
    const QStringList string_pieces = string.split(',');
    split.peer("QByteArray::split", [=] { return bytes.split(',').size(); });
    fresh.peer("QByteArray::split", [=] { return bytes.split(',').size(); });
    join.peer("QByteArrayList::join", [=] { return byte_pieces.join(',').size(); });
    wide_split.peer("QString::split", [=] { return string.split(',').size(); });
    wide_join.peer("QStringList::join", [=] { return string_pieces.join(',').size(); });
#endif
}

/// Lines that are restored before each time, and trimmed as their users write it.
void add_trimming_row(const std::string &name, const std::string &text)
{
    constexpr uint32_t count = 400;
    ZEB_String *const given = string_of(text);
    ZEB_String_Array *const lines = [[ZEB_String_Array alloc] init_with_length:count];
    const auto restore = [=] {
        for (ZEB_String *line : zeb::elements(lines))
            [line set_contents_of_array:given];
    };
    const auto trim = [=] {
        for (ZEB_String *line : zeb::elements(lines))
            [line trim_whitespace];
    };
#if ZEB_HAS_QT
    const QByteArray bytes(text.data(), qsizetype(text.size()));
    auto *const byte_lines = new std::vector<QByteArray>(count);
    const auto restore_both = [=] {
        restore();
        for (QByteArray &line : *byte_lines)
            line = QByteArray(bytes.data(), bytes.size()); // its own copy
    };
    Row(name, Measure::Items, count, restore_both)
        .framework(trim)
        .peer("QByteArray::trimmed",
              [=] {
                  for (QByteArray &line : *byte_lines)
                      line = line.trimmed();
              })
        .goal(2);
#else
    Row(name, Measure::Items, count, restore).framework(trim).goal(2);
#endif
}

void add_wide_trimming_row(const std::string &name, const std::string &text)
{
    constexpr uint32_t count = 400;
    ZEB_Wide_String *const given = wide_string_of(text);
    ZEB_Wide_String_Array *const lines = [[ZEB_Wide_String_Array alloc] init_with_length:count];
    const auto restore = [=] {
        for (ZEB_Wide_String *line : zeb::elements(lines))
            [line set_contents_of_array:given];
    };
    const auto trim = [=] {
        for (ZEB_Wide_String *line : zeb::elements(lines))
            [line trim_whitespace];
    };
#if ZEB_HAS_QT
    const QString string = QString::fromUtf8(text.data(), qsizetype(text.size()));
    auto *const string_lines = new std::vector<QString>(count);
    const auto restore_both = [=] {
        restore();
        for (QString &line : *string_lines)
            line = QString(string.data(), string.size());
    };
    Row(name, Measure::Items, count, restore_both)
        .framework(trim)
        .peer("QString::trimmed",
              [=] {
                  for (QString &line : *string_lines)
                      line = line.trimmed();
              })
        .goal(2);
#else
    Row(name, Measure::Items, count, restore).framework(trim).goal(2);
#endif
}

void add_searching_row(const std::string &name, std::size_t at)
{
    auto *const text = new std::string(words(text_size));
    text->replace(at, 9, "KORVANE_Z");
    ZEB_String *const string = string_of(*text), *const part = string_of("KORVANE_Z");
    Row row("find last, " + name, Measure::Bytes, static_cast<double>(text_size - at));
    row.framework([=] { return [string find_last_text:part]; });
    row.peer("std::string_view::rfind", [=] { return std::string_view(*text).rfind("KORVANE_Z"); });
#if ZEB_HAS_QT
    const QByteArray bytes(text->data(), qsizetype(text->size()));
    row.peer("QByteArray::lastIndexOf", [=] { return bytes.lastIndexOf("KORVANE_Z"); });
#endif
}

template <class Number>
void add_number_row(const std::string &name, Number (*make)(std::mt19937_64 &))
{
    constexpr std::size_t count = 4096;
    auto *const numbers = new std::vector<Number>;
    std::mt19937_64 random(1);
    while (numbers->size() < count)
        numbers->push_back(make(random));
    const auto each = [=](auto write) {
        return [=] {
            std::size_t length = 0;
            char text[64];
            for (const Number x : *numbers) {
                length += static_cast<std::size_t>(write(text, x) - text);
                benchmark::ClobberMemory();
            }
            return length;
        };
    };
    Row(name, Measure::Items, count)
        .framework(each([](char *text, Number x) { return zeb::engine::put_shortest(text, x); }))
        .peer("std::to_chars",
              each([](char *text, Number x) { return std::to_chars(text, text + 64, x).ptr; }))
        .goal(1 / 1.1);
}

/// Any number that is one: its bits at random.
template <class Bits, class Number>
Number any(std::mt19937_64 &random)
{
    for (;;) {
        const Bits bits = static_cast<Bits>(random());
        Number x;
        std::memcpy(&x, &bits, sizeof x);
        if (x - x == 0)
            return x;
    }
}

double below_a_million(std::mt19937_64 &random)
{
    return static_cast<double>(random() >> 11) * 0x1p-53 * 1e6;
}
double with_two_decimals(std::mt19937_64 &random) { return static_cast<double>(random() % 100000000) / 100; }

} // namespace

void add_text_rows()
{
    add_splitting_rows(8);
    add_splitting_rows(100);
    const std::string short_line = "  \t" + words(18) + "  \n";
    const std::string long_line = std::string(20, ' ') + words(170) + std::string(10, '\n');
    add_trimming_row("trim, 24 characters", short_line);
    add_wide_trimming_row("trim 32-bit, 24 characters", short_line);
    add_trimming_row("trim, 200 characters", long_line);
    add_wide_trimming_row("trim 32-bit, 200 characters", long_line);
    add_searching_row("a match at the front", 0);
    add_searching_row("a match near the end", text_size - 200);
    add_number_row("shortest double, any", any<std::uint64_t, double>);
    add_number_row("shortest double, below 1000000", below_a_million);
    add_number_row("shortest double, two decimals", with_two_decimals);
    add_number_row("shortest float, any", any<std::uint32_t, float>);
}

} // namespace zeb_bench
