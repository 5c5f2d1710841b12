/*
 * Elements as NSNumbers, and back.
 */
#import "core/ZEB_Report_Private.h"

#include "arrays/engine/algorithms/any_number.hpp"
#include "arrays/engine/scratch.hpp"
#include "arrays/engine/storage/bridge_notes.hpp"
#include "arrays/engine/storage/insertion.hpp"
#include "core/engine/platform_call.hpp"

#include <algorithm>
#include <span>

namespace zeb::engine
{

/// Return an NSNumber, owned by the caller.
inline NSNumber *make_number(uint8_t value) { return [[NSNumber alloc] initWithUnsignedChar:value]; }
inline NSNumber *make_number(int32_t value) { return [[NSNumber alloc] initWithInt:value]; }
inline NSNumber *make_number(uint32_t value) { return [[NSNumber alloc] initWithUnsignedInt:value]; }
inline NSNumber *make_number(int64_t value) { return [[NSNumber alloc] initWithLongLong:value]; }
inline NSNumber *make_number(float value) { return [[NSNumber alloc] initWithFloat:value]; }
inline NSNumber *make_number(double value) { return [[NSNumber alloc] initWithDouble:value]; }

/// Reads NSNumbers one after the other. What a class is, is asked once for a run of its objects.
class Number_Reader
{
public:
    /// Returns false for what is no NSNumber, and for one of a type of its own.
    bool read(id object, Any_Number &number);

private:
    void meet(Class other);

    Class last = Nil;
    bool is_number = false;
    bool is_decimal = false;
};

/// Makes numbers and counts them, until the last one or memory ends. Throws what the platform throws.
template <class Element>
void make_numbers(std::span<const Element> elements, NSNumber **numbers, uint32_t &made)
{
    constexpr uint32_t numbers_per_reserve_check = 64;
    for (; made < elements.size(); ++made) {
        if (made % numbers_per_reserve_check == 0 && !has_reserve())
            return;
        numbers[made] = make_number(elements[made]);
    }
}

void release_numbers(NSNumber **numbers, uint32_t count);

/// Returns an autoreleased array of numbers; nil, after a report, if the platform cannot make it.
template <class Element>
NSArray *array_of_numbers(std::span<const Element> elements, Fix_Report report)
{
    const Scratch<NSNumber *> numbers(elements.size());
    NSArray *array = nil;
    uint32_t made = 0;
    runs_through([&] {
        if (elements.empty() || numbers.get() != nullptr)
            make_numbers(elements, numbers.get(), made);
        if (made == elements.size())
            array = [[NSArray alloc] initWithObjects:numbers.get() count:made];
    });
    release_numbers(numbers.get(), made);
    if (array == nil)
        report(notes::allocate_failed);
    return [array autorelease];
}

/// Reads all numbers of an array; false if one is not in the range of the elements. Throws what the platform
/// throws.
template <class Element>
bool read_numbers(NSArray *numbers, std::span<Element> elements)
{
    constexpr std::size_t run = 256;
    NSNumber *objects[run];
    Number_Reader reader;
    Any_Number number{};
    for (std::size_t at = 0; at < elements.size(); at += run) {
        const std::size_t n = std::min(run, elements.size() - at);
        [numbers getObjects:objects range:NSMakeRange(at, n)];
        for (std::size_t i = 0; i < n; ++i)
            if (!reader.read(objects[i], number) || !convert(number, elements[at + i]))
                return false;
    }
    return true;
}

/// Returns the note to be reported; none if the array holds the numbers now. `numbers` are nobody else's.
template <class Element>
Char_Span store_numbers(Array_Storage<Plain_Elements<Element>> array, NSArray *numbers)
{
    const NSUInteger count = [numbers count];
    const Scratch<Element> elements(count);
    if (count > UINT32_MAX || (count != 0 && elements.get() == nullptr))
        return notes::allocate_failed;
    bool are_read = false;
    runs_through([&] { are_read = read_numbers(numbers, std::span<Element>(elements.get(), count)); });
    if (!are_read)
        return notes::no_such_numbers;
    Char_Span failure{nullptr, 0};
    set_contents(array, {elements.get(), static_cast<uint32_t>(count)},
                 [&](Char_Span note) { failure = note; });
    return failure;
}

/// Replaces an array's contents with numbers; nil counts as none. Returns false, after a report and with the
/// array unchanged, for what cannot be stored whole.
template <class Element>
bool set_to_numbers(Array_Storage<Plain_Elements<Element>> array, NSArray *numbers, Fix_Report report)
{
    Char_Span failure = notes::no_such_numbers;
    NSArray *kept = nil;
    // What asking a number's value does to a mutable array, is done to another one.
    if (numbers == nil || [numbers isKindOfClass:[NSArray class]]) {
        const bool is_kept = runs_through([&] { kept = [numbers copy]; });
        failure = is_kept ? store_numbers(array, kept) : notes::allocate_failed;
    }
    [kept release];
    if (failure.length != 0)
        report(failure);
    return failure.length == 0;
}

} // namespace zeb::engine
