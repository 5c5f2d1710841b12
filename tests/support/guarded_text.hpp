#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace zeb_test
{

/// The text that a writer puts into a place of at most `size` bytes; nothing behind its null may change.
template <typename Writer, typename... Arguments>
std::string guarded_text(std::size_t size, Writer writer, Arguments... arguments)
{
    constexpr char pattern = '\x5A'; // in no text of a writer
    std::string place(size + 64, pattern);
    const char *const start = place.data();
    const char *const end = writer(place.data(), arguments...);
    EXPECT_EQ(*end, '\0');
    const std::string text = start;
    EXPECT_EQ(end, start + text.size());
    EXPECT_LT(text.size(), size);
    EXPECT_EQ(place.find_first_not_of(pattern, text.size() + 1), std::string::npos)
        << "written behind \"" << text << '"';
    return text;
}

/// What a scanner answers for a copy that ends with the array's last byte: a sanitizer sees any look beyond
/// it.
template <typename Scanner, typename... Arguments>
std::uint32_t scanned(const std::string &text, Scanner scanner, Arguments... arguments)
{
    const std::vector<char> exact(text.begin(), text.end());
    return scanner(exact.data(), static_cast<std::uint32_t>(exact.size()), arguments...);
}

} // namespace zeb_test
