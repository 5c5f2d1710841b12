/// Searching and comparing texts of a few sizes.
#include "benchmarks/strings/string_rows.hpp"

#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "core/engine/namespace.hpp"
#include "strings/engine/text_comparison.hpp"

#include <cctype>
#include <cstring>
#include <random>
#include <strings.h>

namespace zeb_bench
{

std::string words(std::size_t length)
{
    static const char letters[] =
        "eeeeeeeeeeeettttttttttaaaaaaaaooooooooiiiiiiinnnnnnnssssssrrrrrrhhhhhhddddllll"
        "cccuuummmwwffggyyppbvk            ";
    std::mt19937 random(7);
    std::string text(length, ' ');
    for (char &letter : text)
        letter = letters[random() % (sizeof letters - 1)];
    return text;
}

namespace
{

using Text = std::span<const char>;

std::string size_of(std::size_t bytes)
{
    return bytes < 1024 ? std::to_string(bytes) + " B" : std::to_string(bytes >> 10) + " KiB";
}

/// A short job is done this often at a time.
std::size_t times(std::size_t bytes) { return bytes >= 65536 ? 1 : 65536 / bytes; }

template <class Work>
auto repeated(std::size_t bytes, Work work)
{
    return [=] {
        for (std::size_t i = times(bytes); i > 0; --i) {
            benchmark::ClobberMemory();
            benchmark::DoNotOptimize(work());
        }
    };
}

/// Equal texts, in blocks of their own, so that all of both is looked at.
void add_rows(std::size_t bytes)
{
    const auto *const left = new std::string(words(bytes)), *const right = new std::string(*left);
    auto *const shouted = new std::string(*left);
    for (char &c : *shouted)
        c = static_cast<char>(std::toupper(c));
    const double amount = static_cast<double>(bytes * times(bytes));
    const auto memory = repeated(bytes, [=] { return std::memcmp(left->data(), right->data(), bytes); });
    Row("compare, " + size_of(bytes), Measure::Bytes, amount)
        .goal(0.9)
        .framework(repeated(bytes, [=] { return engine::compare(Text(*left), Text(*right)); }))
        .peer("memcmp", memory);
    Row("is equal, " + size_of(bytes), Measure::Bytes, amount)
        .goal(0.9)
        .framework(repeated(bytes, [=] { return engine::same_memory(Text(*left), Text(*right)); }))
        .peer("memcmp", memory);
    Row("compare 32-bit units, " + size_of(bytes), Measure::Bytes, amount)
        .goal(0.9)
        .framework(repeated(bytes,
                            [=] {
                                const auto units = [bytes](const std::string *text) {
                                    return std::span<const std::uint32_t>(
                                        reinterpret_cast<const std::uint32_t *>(text->data()), bytes / 4);
                                };
                                return engine::compare(units(left), units(right));
                            }))
        .peer("memcmp", memory);
    if (bytes < 1024)
        return;
    Row("compare ignoring case, " + size_of(bytes), Measure::Bytes, amount)
        .goal(1)
        .framework(repeated(bytes, [=] { return engine::compare_ignoring_case(*left, *shouted); }))
        .peer("strncasecmp",
              repeated(bytes, [=] { return strncasecmp(left->data(), shouted->data(), bytes); }));
    Row("is equal ignoring case, " + size_of(bytes), Measure::Bytes, amount)
        .goal(1)
        .framework(repeated(bytes, [=] { return engine::is_equal_ignoring_case(*left, *shouted); }))
        .peer("strncasecmp",
              repeated(bytes, [=] { return strncasecmp(left->data(), shouted->data(), bytes); }));
    Row("index of character, " + size_of(bytes), Measure::Bytes, amount)
        .goal(0.9)
        .framework(repeated(bytes, [=] { return engine::first_index_of(Text(*left), '#'); }))
        .peer("memchr", repeated(bytes, [=] { return std::memchr(left->data(), '#', bytes); }));
}

} // namespace

void add_comparison_rows()
{
    for (const std::size_t bytes : {64, 256, 1024, 16384, 1 << 20})
        add_rows(bytes);
}

} // namespace zeb_bench
