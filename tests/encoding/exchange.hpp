/// What machines exchange in files: each writes the same contents, and reads what the others wrote.
#pragma once

#include <string>
#include <vector>

namespace support
{

struct Exchange {
    std::string name;
    /// Whether all was written.
    bool (*write)(const std::string &path);
    /// Whether the file holds, bit for bit, what this machine would have written.
    bool (*reads_the_same)(const std::string &path);
};

inline std::vector<Exchange> &exchanges()
{
    static std::vector<Exchange> all;
    return all;
}

/// For an initialiser: adds to the list before `main` begins.
inline bool add_exchange(const Exchange &exchange)
{
    exchanges().push_back(exchange);
    return true;
}

} // namespace support
