/// Walking the tree below a directory.
#pragma once

#include "core/engine/char_span.hpp"
#include "filesystem/engine/file_status.hpp"

namespace zeb::engine
{

enum class Entry_Type { directory, link, other, unknown };

/// An entry at which a walk is: its name in an open directory, and its path from the top of the walk.
struct Walk_Entry {
    int directory; /* AT_FDCWD for the top itself */
    const char *name;
    Char_Span path; /* null-terminated too */
    Entry_Type type;
};

/// How a walk goes on: to the next entry, into this one, or not at all.
enum class Walk_Step { next, into, stop };

/// What a walk does.
class Walk_Visitor
{
public:
    /// Called for each entry of a directory.
    virtual Walk_Step at_entry(const Walk_Entry &entry) = 0;

    /// Called when the walk leaves a directory, even if it stopped there. `error` is the reason if the
    /// directory could not be opened, or not be read to its end. Returns `next` or `stop`.
    virtual Walk_Step at_end(const Walk_Entry &directory, bool was_opened, int error) = 0;

protected:
    ~Walk_Visitor() = default;
};

/// Walks the directory at the null-terminated `place`; `path` is its path for the visitor. All names of a
/// directory are read before the first is visited. Directories are opened relative to the one they are in, so
/// an entry that becomes a link meanwhile does not lead out of the tree. If links are followed, a directory
/// that the walk is in already counts as one that cannot be opened (ELOOP). Returns 0, or why the walk could
/// not go on: no memory, or a directory was moved while the walk was far below it.
int walk_tree(const char *place, Char_Span path, Links links, Walk_Visitor &visitor) noexcept;

} // namespace zeb::engine
