/// The "C" locale, and a scope that selects it.
#pragma once

#include <locale.h>
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif

namespace zeb::engine
{

/// Returns the "C" locale, created on the first call.
locale_t c_locale() noexcept;

/// Sets this thread to the "C" locale for its lifetime, for C library functions that take no locale argument.
/// Other threads keep theirs.
class C_Locale_Scope
{
public:
    C_Locale_Scope() noexcept : former(uselocale(c_locale())) {}
    ~C_Locale_Scope() { uselocale(former); }
    C_Locale_Scope(const C_Locale_Scope &) = delete;
    C_Locale_Scope &operator=(const C_Locale_Scope &) = delete;

private:
    locale_t former;
};

} // namespace zeb::engine
