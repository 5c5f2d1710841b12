/// Searching runs of elements in 64 MiB.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/search.hpp"
#include "core/engine/namespace.hpp"

#if ZEB_HAS_QT
#include <QByteArrayMatcher>
#include <QByteArrayView>
#endif
#if ZEB_HAS_ABSL
#include <absl/strings/match.h>
#endif

#include <algorithm>
#include <cstring>
#include <functional>
#include <string_view>

namespace zeb_bench
{
namespace
{

constexpr std::size_t text_bytes = std::size_t{64} << 20;

/// Text of lower-case words, letters as frequent as in English, with the pattern near the end.
std::string &text()
{
    static std::string kept;
    if (kept.empty()) {
        static const char letters[] =
            "eeeeeeeeeeeettttttttttaaaaaaaaooooooooiiiiiiinnnnnnnssssssrrrrrrhhhhhhddddllll"
            "cccuuummwwffggyyppbvk            ";
        std::mt19937 random(6);
        kept.resize(text_bytes);
        for (char &letter : kept)
            letter = letters[random() % (sizeof letters - 1)];
    }
    return kept;
}

std::string &one_letter()
{
    static std::string kept(text_bytes, 'a');
    return kept;
}

void add_row(const std::string &name, std::string &where, const std::string &pattern, double goal)
{
    const auto block = [&where] { return std::span<const char>(where.data(), where.size()); };
    const char *const all = where.data();
    Row row("find run of " + name + ", char, 64 MiB", Measure::Bytes, text_bytes);
    if (goal > 0)
        row.goal(goal);
    row.framework(
        [=] { return engine::first_index_of_subsequence<char>(block(), std::span<const char>(pattern)); });
#if defined(_GNU_SOURCE)
    row.peer("memmem", [=] { return memmem(all, text_bytes, pattern.data(), pattern.size()); });
#endif
#if ZEB_HAS_QT
    row.peer("QByteArrayView::indexOf",
             [=] { return QByteArrayView(all, qsizetype{text_bytes}).indexOf(QByteArrayView(pattern)); });
    row.peer("QByteArrayMatcher", [=] {
        return QByteArrayMatcher(QByteArrayView(pattern)).indexIn(QByteArrayView(all, qsizetype{text_bytes}));
    });
#endif
#if ZEB_HAS_ABSL
    row.peer("absl::StrContains",
             [=] { return absl::StrContains(absl::string_view(all, text_bytes), pattern); });
#endif
    row.peer("std::string_view::find", [=] { return std::string_view(all, text_bytes).find(pattern); })
        .peer("std::boyer_moore_horspool_searcher",
              [=] {
                  const std::boyer_moore_horspool_searcher searcher(pattern.begin(), pattern.end());
                  return std::search(all, all + text_bytes, searcher) - all;
              })
        .limit("memchr", [=] { return std::memchr(all, '#', text_bytes); });
}

} // namespace

void add_subsequence_rows()
{
    std::string &words = text();
    words[text_bytes - 2000] = 'Z';
    add_row("1", words, "Z", 0.95);
    for (const std::size_t length : {8, 16, 64}) {
        // Cut from the end of the text, so that it is as ordinary as all of it.
        const std::string pattern = words.substr(text_bytes - 1000, length);
        add_row(std::to_string(length), words, pattern, 2.5);
    }
    add_row("a...ab", one_letter(), std::string(63, 'a') + 'b', 0);
    add_row("a...aba...a", one_letter(), std::string(31, 'a') + 'b' + std::string(32, 'a'), 0);
}

} // namespace zeb_bench
