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

/// Return an autoreleased NSNumber, which the platform makes in half the time of one that is owned.
inline NSNumber *make_number(uint8_t value) { return [NSNumber numberWithUnsignedChar:value]; }
inline NSNumber *make_number(int32_t value) { return [NSNumber numberWithInt:value]; }
inline NSNumber *make_number(uint32_t value) { return [NSNumber numberWithUnsignedInt:value]; }
inline NSNumber *make_number(int64_t value) { return [NSNumber numberWithLongLong:value]; }
inline NSNumber *make_number(float value) { return [NSNumber numberWithFloat:value]; }
inline NSNumber *make_number(double value) { return [NSNumber numberWithDouble:value]; }

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

/// Makes the numbers of all elements; false if memory ends before. Throws what the platform throws.
template <class Element>
bool make_numbers(std::span<const Element> elements, NSNumber **numbers)
{
    constexpr std::size_t numbers_per_reserve_check = 64;
    for (std::size_t i = 0; i < elements.size(); ++i) {
        if (i % numbers_per_reserve_check == 0 && !has_reserve())
            return false;
        numbers[i] = make_number(elements[i]);
    }
    return true;
}

/// Returns an autoreleased array of numbers; nil, after a report, if the platform cannot make it.
template <class Element>
NSArray *array_of_numbers(std::span<const Element> elements, Fix_Report report)
{
    const Scratch<NSNumber *> numbers(elements.size());
    NSAutoreleasePool *pool = nil;
    NSArray *array = nil;
    runs_through([&] {
        pool = [[NSAutoreleasePool alloc] init];
        if (elements.empty() || (numbers.get() != nullptr && make_numbers(elements, numbers.get())))
            array = [[NSArray alloc] initWithObjects:numbers.get() count:elements.size()];
    });
    [pool drain];
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
