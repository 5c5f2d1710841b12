/// `zeb::retained<Class>`: a reference that keeps an object of the framework or the platform alive, for C++
/// members, containers and locals. With and without automatic reference counting.
///
///     auto values = zeb::retained<ZEB_Double_Array>::adopt([[ZEB_Double_Array alloc] init]);
///     [values.get() append_double:2.5];
///
/// As a field of an Objective-C class it needs a compiler that calls C++ constructors there: g++ does so with
/// -fobjc-call-cxx-cdtors, clang as it is.
#pragma once

#import <Foundation/Foundation.h>

#include <cstddef>
#include <utility>

namespace zeb
{

#if defined(__has_feature)
#if __has_feature(objc_arc)
#define ZEB_RETAINED_COUNTS_BY_ITSELF
#endif
#endif

template <class Class>
class retained
{
public:
    /// Refers to nothing.
    retained() noexcept = default;
    retained(std::nullptr_t) noexcept {}

    /// Retains an object, which may be nil.
    retained(Class *other) : object(retain(other)) {}

    retained(const retained &other) : object(retain(other.object)) {}
    retained(retained &&other) noexcept : object(other.object) { other.object = nil; }
    retained &operator=(retained other) noexcept
    {
        swap(other);
        return *this;
    }
    ~retained() { release(object); }

    /// The object, nil for none; it lives at least as long as this reference to it.
    Class *get() const noexcept { return object; }
    explicit operator bool() const noexcept { return object != nil; }

    void swap(retained &other) noexcept { std::swap(object, other.object); }

    /// Whether both refer to the same object.
    friend bool operator==(const retained &left, const retained &right) noexcept
    {
        return left.object == right.object;
    }

    /// Takes over a reference that the caller has: what `alloc` and `init`, `copy` and ZEB_copy return.
    static retained adopt(Class *owned) noexcept
    {
        retained made;
        made.object = owned;
        return made;
    }

private:
#if defined(ZEB_RETAINED_COUNTS_BY_ITSELF)
    static Class *retain(Class *kept) { return kept; }
    static void release(Class *) {}
#else
    static Class *retain(Class *kept) { return [kept retain]; }
    static void release(Class *kept) { [kept release]; }
#endif

    Class *object = nil;
};

#undef ZEB_RETAINED_COUNTS_BY_ITSELF

} // namespace zeb
