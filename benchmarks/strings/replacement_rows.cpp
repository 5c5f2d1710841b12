/// Replacing one word in a hundred places of every ten thousand characters, 16 MiB of them.
#include "benchmarks/strings/string_rows.hpp"

#include "arrays/engine/storage/occurrences.hpp"
#include "core/engine/namespace.hpp"
#include "strings/engine/c_strings.hpp"

#if ZEB_HAS_QT
#include <QByteArray>
#endif
#if ZEB_HAS_ABSL
#include <absl/strings/str_replace.h>
#endif

#include <cstring>

namespace zeb_bench
{
namespace
{

constexpr std::size_t text_bytes = std::size_t{16} << 20;
constexpr std::size_t distance = 100;
const std::string word = "Needle";

const std::string &text()
{
    static const std::string kept = [] {
        std::string made = words(text_bytes);
        for (std::size_t at = 0; at + distance < made.size(); at += distance)
            made.replace(at + made[at] % 64u, word.size(), word);
        return made;
    }();
    return kept;
}

/// A string's fields, without its class.
struct Fields {
    char *data = nullptr;
    std::uint32_t count = 0;
    std::uint32_t capacity = 0;
    std::uint32_t marker = 0;

    engine::Char_Storage storage() { return {{data, count, marker, {}}, capacity, 16}; }
};

void ignore(engine::Char_Span) {}

void replace_in_string(std::string &all, const std::string &replacement)
{
    std::string made;
    made.reserve(all.size());
    std::size_t at = 0;
    for (std::size_t found; (found = all.find(word, at)) != std::string::npos; at = found + word.size())
        made.append(all, at, found - at).append(replacement);
    all = made.append(all, at);
}

/// Each contender begins with a fresh copy, which is made in the time that is measured.
void add_row(const std::string &name, const std::string &replacement)
{
    auto *const fields = new Fields;
    Row row("replace occurrences, " + name + ", 16 MiB", Measure::Bytes, text_bytes);
    row.goal_over("QByteArray::replace", 2).framework([=] {
        engine::copy_c_string(fields->storage(), text().data(), text_bytes, ignore);
        return engine::replace_occurrences(fields->storage(), word, replacement, ignore);
    });
#if ZEB_HAS_QT
    row.peer("QByteArray::replace", [=] {
        QByteArray all(text().data(), text_bytes);
        return all.replace(QByteArrayView(word), QByteArrayView(replacement)).size();
    });
#endif
#if ZEB_HAS_ABSL
    row.peer("absl::StrReplaceAll", [=] {
        std::string all = text();
        return absl::StrReplaceAll({{word, replacement}}, &all);
    });
#endif
    row.peer("std::string::find and append", [=] {
        std::string all = text();
        replace_in_string(all, replacement);
        return all.size();
    });
}

} // namespace

void add_replacement_rows()
{
    add_row("shorter", "Pin");
    add_row("equal", "Haymow");
    add_row("longer", "Haystacks");
}

} // namespace zeb_bench
