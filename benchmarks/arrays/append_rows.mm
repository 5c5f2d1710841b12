/// Appending to an array object, by message and in blocks, and reading it.
#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/arrays/data.hpp"
#include "benchmarks/common/rows.hpp"

#if ZEB_HAS_QT
#include <QList>
#endif
#if ZEB_HAS_ABSL
#include <absl/container/inlined_vector.h>
#endif

#include <numeric>
#include <span>

#import <Korvane_ZEB/Korvane_ZEB.h>

/// What a message costs that does nothing.
@interface ZEB_Double_Array (Empty_Message)
- (void)take_nothing_from:(double)element;
@end
@implementation ZEB_Double_Array (Empty_Message)
- (void)take_nothing_from:(double)element
{
    (void)element;
}
@end

namespace zeb_bench
{
namespace
{

constexpr uint32_t elements_count = 1000000;
constexpr uint32_t block_count = 1024;

/// Appends the same elements again and again to one container, whose memory is warm.
template <class Container, class Clear, class Append>
auto appending(Container *container, Clear clear, Append append)
{
    return [=] {
        clear(*container);
        for (uint32_t i = 0; i < elements_count; ++i)
            append(*container, static_cast<double>(i));
        benchmark::ClobberMemory();
    };
}

template <class Container>
void add_pushing_peer(Row &row, const char *name)
{
    Container *const kept = new Container;
    row.peer(name, appending(
                       kept, [](Container &all) { all.clear(); },
                       [](Container &all, double element) { all.push_back(element); }));
}

void add_peers(Row &row)
{
    add_pushing_peer<std::vector<double>>(row, "std::vector");
#if ZEB_HAS_QT
    add_pushing_peer<QList<double>>(row, "QList");
#endif
#if ZEB_HAS_ABSL
    add_pushing_peer<absl::InlinedVector<double, 4>>(row, "absl::InlinedVector");
#endif
}

} // namespace

void add_append_rows()
{
    ZEB_Double_Array *const array = [[ZEB_Double_Array alloc] init];
    static const std::vector<double> block(block_count, 1.0);
    Row one("append one by message, double", Measure::Items, elements_count);
    add_peers(one);
    one.limit_goal(1 / 1.25)
        .framework([=] {
            [array clear];
            for (uint32_t i = 0; i < elements_count; ++i)
                [array append_double:static_cast<double>(i)];
        })
        .limit("empty message", [=] {
            for (uint32_t i = 0; i < elements_count; ++i)
                [array take_nothing_from:static_cast<double>(i)];
        });
    Row blocks("append in blocks of 1,024, double", Measure::Items, elements_count);
    add_peers(blocks);
    blocks.goal(1 / 0.5).framework([=] {
        [array clear];
        for (uint32_t i = 0; i + block_count <= elements_count; i += block_count)
            [array append_doubles:block.data() count:block_count];
        benchmark::ClobberMemory();
    });
}

} // namespace zeb_bench
