/// Formats of scanf that take a double.
#pragma once

#include <cstddef>
#include <memory>

namespace zeb::engine
{

/// A scanf format, each of whose floating-point conversions that store and lack a length modifier got the
/// `l` of a double. Suppressed conversions, scan sets and all other text stay as they are.
class Double_Scan_Format
{
public:
    explicit Double_Scan_Format(const char *format) noexcept;

    /// The format, as long as this object lives; the empty text if allocation fails.
    const char *c_string() const noexcept { return text; }

private:
    char short_text[64];
    std::unique_ptr<char[]> long_text;
    const char *text;
};

} // namespace zeb::engine
