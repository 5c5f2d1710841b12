/// scanf formats that store doubles.
#pragma once

#include <cstddef>
#include <memory>

namespace zeb::engine
{

/// A copy of a scanf format in which each storing floating-point conversion without a length modifier has the
/// `l` of a double. Suppressed conversions, scan sets and all other text are unchanged.
class Double_Scan_Format
{
public:
    explicit Double_Scan_Format(const char *format) noexcept;

    /// Returns the format, valid as long as this object; empty if allocation fails.
    const char *c_string() const noexcept { return text; }

private:
    char short_text[64];
    std::unique_ptr<char[]> long_text;
    const char *text;
};

} // namespace zeb::engine
