/// Numbers as text onto strings and files.
#include "benchmarks/encoding/encoding_rows.hpp"

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <string>
#include <unistd.h>

namespace zeb_bench
{
namespace
{

constexpr uint32_t count = 1000000;

ZEB_Double_Array *doubles()
{
    static ZEB_Double_Array *const made = [] {
        ZEB_Double_Array *const array = [[ZEB_Double_Array alloc] init];
        uint32_t state = 1;
        for (uint32_t i = 0; i < count; ++i) {
            state = state * 1664525 + 1013904223;
            [array append_double:static_cast<int32_t>(state) * 1e-4];
        }
        return array;
    }();
    return made;
}

/// `snprintf` into a buffer, which is then appended.
template <class Value>
auto printed(const char *format, Value value_at)
{
    return [=] {
        static std::string text;
        text.clear();
        for (uint32_t i = 0; i < count; ++i) {
            char buffer[64];
            const int length = snprintf(buffer, sizeof buffer, format, value_at(i));
            text.append(buffer, static_cast<std::size_t>(length));
        }
    };
}

template <class Write>
auto streamed(Write write)
{
    return [=] {
        static ZEB_String_Stream *const stream = [[ZEB_String_Stream alloc] init];
        [stream reset];
        for (uint32_t i = 0; i < count; ++i)
            write(stream, i);
    };
}

const std::string &path()
{
    static const std::string made = "/tmp/zeb-stream-rows-" + std::to_string(getpid());
    return made;
}

template <class Write>
auto onto_file(Write write)
{
    return [=] {
        ZEB_File_Stream *const stream = [[ZEB_File_Stream alloc] init];
        [stream set_file:fopen(path().c_str(), "w")];
        write(stream);
        [stream release];
    };
}

} // namespace

void add_stream_rows()
{
    const double *const values = [doubles() double_data];
    const auto as_int = [](uint32_t i) { return static_cast<int32_t>(i * 2654435761U); };
    const auto as_unsigned = [](uint32_t i) { return i * 2654435761U; };
    const auto as_double = [=](uint32_t i) { return values[i]; };
    Row("a million ints onto a string", Measure::Items, count)
        .goal_over("snprintf", 2)
        .framework(streamed([=](ZEB_Stream *stream, uint32_t i) { [stream write_int:as_int(i)]; }))
        .peer("snprintf", printed("%d", as_int));
    Row("a million unsigned onto a string", Measure::Items, count)
        .goal_over("snprintf", 2)
        .framework(streamed([=](ZEB_Stream *stream, uint32_t i) { [stream write_unsigned:as_unsigned(i)]; }))
        .peer("snprintf", printed("%u", as_unsigned));
    Row("a million doubles onto a string", Measure::Items, count)
        .goal_over("snprintf", 2)
        .framework(streamed([=](ZEB_Stream *stream, uint32_t i) { [stream write_double:as_double(i)]; }))
        .peer("snprintf", printed("%g", as_double));
    const auto one_by_one = onto_file([=](ZEB_Stream *stream) {
        for (uint32_t i = 0; i < count; ++i)
            [stream write_double:values[i]];
    });
    Row("a million doubles onto a file", Measure::Items, count)
        .goal_over("fprintf", 1)
        .framework(one_by_one)
        .peer("fprintf", [=] {
            FILE *const file = fopen(path().c_str(), "w");
            for (uint32_t i = 0; i < count; ++i)
                fprintf(file, "%g", values[i]);
            fclose(file);
        });
    Row("a list of a million doubles onto a file", Measure::Items, count)
        .goal_over("the primitives", 1 / 1.1)
        .framework(onto_file([](ZEB_Stream *stream) { [stream ZEB_send_delimited_list:doubles()]; }))
        .peer("the primitives", onto_file([=](ZEB_Stream *stream) {
                  [stream write_bytes:"{" length:1];
                  for (uint32_t i = 0; i < count; ++i) {
                      if (i != 0)
                          [stream write_bytes:", " length:2];
                      [stream write_double:values[i]];
                  }
                  [stream write_bytes:"}" length:1];
              }));
}

} // namespace zeb_bench
