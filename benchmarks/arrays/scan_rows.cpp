/// Searches, extremes, fill, reverse and equality of blocks in the cache and in memory.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/compiled_loops.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#include "arrays/engine/algorithms/equality.hpp"
#include "arrays/engine/algorithms/extrema.hpp"
#include "arrays/engine/algorithms/fill.hpp"
#include "arrays/engine/algorithms/reorder.hpp"
#include "arrays/engine/algorithms/search.hpp"
#include "core/engine/namespace.hpp"

#if ZEB_HAS_QT
#include <QList>
#endif

#include <algorithm>
#include <cstring>

namespace zeb_bench
{
namespace
{

template <class Element>
class Block_Rows
{
public:
    explicit Block_Rows(std::size_t block_bytes) : bytes(block_bytes), count(bytes / sizeof(Element)) {}

    void add() const
    {
        add_searches();
        add_extremes();
        add_changes();
        add_equalities();
    }

private:
    Row row(const char *job, double goal = 0.9) const
    {
        const std::string name = std::string(job) + ", " + type_name<Element>() + ", " + size_name(bytes);
        Row made(name, Measure::Bytes, static_cast<double>(bytes));
        made.goal(goal);
        return bytes > std::size_t{16} << 20 ? made.limit_goal(0.75) : made;
    }

    static Element *data(std::size_t count, unsigned seed = 1)
    {
        return shared_elements<Element>(count, seed).data();
    }
    static Element *copy(std::size_t count)
    {
        Element *const second = data(count, 2);
        std::memcpy(second, data(count), count * sizeof(Element));
        return second;
    }

    void add_searches() const
    {
        Element *const all = data(count);
        const std::span<const Element> span(all, count);
        const auto read = [=, size = bytes] { return compiled::read(all, size); };
        const Element absent{};
        Row first = row("first index");
        first.framework([=] { return engine::first_index_of(span, absent); })
            .peer("std::find", [=] { return std::find(span.begin(), span.end(), absent) - span.begin(); })
            .peer("compiled loop", [=] { return compiled::first_index(all, span.size(), absent); })
            .limit("read", read);
        if constexpr (sizeof(Element) == 1)
            first.peer("memchr", [=] { return std::memchr(all, absent, span.size()); });
        Row last = row("last index");
        last.framework([=] { return engine::last_index_of(span, absent); })
            .peer("std::find", [=] { return std::find(span.rbegin(), span.rend(), absent) - span.rbegin(); })
            .peer("compiled loop", [=] { return compiled::last_index(all, span.size(), absent); })
            .limit("read", read);
#if ZEB_HAS_QT
        const QList<Element> list(span.begin(), span.end());
        first.peer("QList::indexOf", [=] { return list.indexOf(absent); });
        last.peer("QList::lastIndexOf", [=] { return list.lastIndexOf(absent); });
#endif
#if defined(_GNU_SOURCE)
        if constexpr (sizeof(Element) == 1)
            last.peer("memrchr", [=] { return memrchr(all, absent, span.size()); });
#endif
    }

    void add_extremes() const
    {
        Element *const all = data(count);
        const std::span<const Element> span(all, count);
        const auto read = [=, size = bytes] { return compiled::read(all, size); };
        row("minimum")
            .framework([=] { return engine::minimum(span); })
            .peer("std::min_element", [=] { return *std::min_element(span.begin(), span.end()); })
            .peer("compiled loop", [=] { return compiled::minimum(all, span.size()); })
            .limit("read", read);
        row("maximum")
            .framework([=] { return engine::maximum(span); })
            .peer("std::max_element", [=] { return *std::max_element(span.begin(), span.end()); })
            .peer("compiled loop", [=] { return compiled::maximum(all, span.size()); })
            .limit("read", read);
        row("minimum and maximum")
            .framework([=] { return engine::minimum_and_maximum(span).maximum; })
            .peer("std::minmax_element",
                  [=] { return *std::minmax_element(span.begin(), span.end()).second; })
            .peer("compiled loops",
                  [=] { return compiled::minimum(all, span.size()) + compiled::maximum(all, span.size()); })
            .limit("read", read);
    }

    void add_changes() const
    {
        Element *const all = data(count, 3);
        const std::span<Element> span(all, count);
        const Element value(7);
        row("fill")
            .framework([=] { engine::fill(span, value); })
            .peer("std::fill", [=] { std::fill(span.begin(), span.end(), value); })
            .peer("compiled loop", [=] { compiled::fill(all, span.size(), value); })
            .limit("write", [=, size = bytes] { compiled::write(all, size); });
        row("reverse")
            .framework([=] { engine::reverse(span); })
            .peer("std::reverse", [=] { std::reverse(span.begin(), span.end()); })
            .peer("compiled loop", [=] { compiled::reverse(all, span.size()); })
            .limit("change in place", [=, size = bytes] { compiled::change(all, size); });
    }

    void add_equalities() const
    {
        Element *const all = data(count);
        Element *const same = copy(count);
        const std::span<const Element> left(all, count), right(same, count);
        const auto read = [=, size = bytes] { return compiled::read_both(all, same, size); };
        const auto standard = [=] { return std::equal(left.begin(), left.end(), right.begin()); };
        const auto loop = [=] { return compiled::equal(all, same, left.size()); };
        row("equality of memory")
            .framework([=] { return engine::same_memory(left, right); })
            .peer("std::equal", standard)
            .peer("memcmp", [=, size = bytes] { return std::memcmp(all, same, size); })
            .limit("read both", read);
        row("equality of values")
            .framework([=] { return engine::same_values(left, right); })
            .peer("std::equal", standard)
            .peer("compiled loop", loop)
            .limit("read both", read);
    }

    std::size_t bytes;
    std::size_t count;
};

} // namespace

void add_scan_rows()
{
    for (const std::size_t bytes : {std::size_t{1} << 20, std::size_t{64} << 20}) {
        Block_Rows<std::uint8_t>(bytes).add();
        Block_Rows<std::int32_t>(bytes).add();
        Block_Rows<std::int64_t>(bytes).add();
        Block_Rows<double>(bytes).add();
    }
}

} // namespace zeb_bench
