#pragma once

#include <locale.h>
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif

namespace zeb::engine
{

/// The "C" locale as an object, made once.
locale_t c_locale() noexcept;

/// For the C library's functions that take no locale: while it lives, this thread is in the "C" locale,
/// whatever locale the process has; other threads do not notice.
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
