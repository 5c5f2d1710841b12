/// Removing a directory with all that is in it.
#pragma once

#include "filesystem/engine/directory_walk.hpp"

namespace zeb::engine
{

/// What is told of a removal: what became of an entry, and of a directory after its entries.
class Removal_Report
{
public:
    /// `error` is 0 for an entry that was removed.
    virtual void tell(Char_Span path, bool is_directory, int error) = 0;

protected:
    ~Removal_Report() = default;
};

/// Removes the directory at the null-terminated `place`; `path` is its path for the report. An entry that
/// cannot be removed is told, and the others are removed all the same. Returns 0 if the directory was
/// removed, else the first error. With Links::are_entries nothing outside the tree is touched, whatever other
/// processes do to it meanwhile.
int remove_tree(const char *place, Char_Span path, Links links, Removal_Report &report) noexcept;

} // namespace zeb::engine
