#include "filesystem/engine/directory_walk.hpp"

#include "filesystem/engine/open_directory.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>

namespace zeb::engine
{
namespace
{

// Directories further up are closed meanwhile: processes may have as few as 256 descriptors.
constexpr std::size_t max_open = 32;

/// A directory that the walk is in.
struct Level {
    Open_Directory directory;
    Directory_Names names;
    std::size_t path_length = 0;
    bool was_opened = false;
    int error = 0;
};

class Walk
{
public:
    Walk(const char *top, Char_Span top_path, Links link_handling, Walk_Visitor &caller)
        : place(top), path(top_path.char_c_array, top_path.length), links(link_handling), visitor(caller)
    {
    }

    int run()
    {
        enter({AT_FDCWD, place, {}, Entry_Type::directory});
        int error = 0;
        while (!levels.empty() && error == 0)
            if (!is_stopped && levels.back().names.has_next())
                visit_next();
            else
                error = leave();
        return error;
    }

private:
    Walk_Entry entry_at(int directory, const char *name, Entry_Type type) const
    {
        return {directory, name, {path.c_str(), static_cast<uint32_t>(path.size())}, type};
    }

    void visit_next()
    {
        const Level &level = levels.back();
        path.resize(level.path_length);
        path.append(1, '/').append(level.names.name());
        const Walk_Entry entry =
            entry_at(level.directory.descriptor(), level.names.name(), level.names.type());
        const Walk_Step step = visitor.at_entry(entry);
        if (step == Walk_Step::into)
            enter(entry);
        else
            levels.back().names.advance();
        is_stopped = step == Walk_Step::stop;
    }

    bool is_inside(Open_Directory &directory)
    {
        return std::any_of(levels.begin(), levels.end(),
                           [&](Level &level) { return directory.is_same_as(level.directory); });
    }

    void enter(const Walk_Entry &entry)
    {
        Level level;
        level.path_length = path.size();
        level.error = level.directory.open(entry.directory, entry.name, links);
        if (level.error == 0 && links == Links::are_followed && is_inside(level.directory))
            level.error = ELOOP;
        level.was_opened = level.error == 0;
        if (level.was_opened)
            level.error = level.directory.read_names(level.names);
        levels.push_back(std::move(level));
        if (levels.size() > max_open)
            levels[levels.size() - 1 - max_open].directory.suspend();
    }

    /// Goes back to the directory above.
    int leave()
    {
        const bool is_top = levels.size() == 1;
        Level *const above = is_top ? nullptr : &levels[levels.size() - 2];
        const Level &level = levels.back();
        if (!is_top && above->directory.descriptor() < 0) {
            const int error = above->directory.resume(level.directory);
            if (error != 0)
                return error;
        }
        path.resize(level.path_length);
        const bool was_opened = level.was_opened;
        const int error = level.error;
        levels.pop_back();
        const Walk_Step step = visitor.at_end(
            is_top ? entry_at(AT_FDCWD, place, Entry_Type::directory)
                   : entry_at(above->directory.descriptor(), above->names.name(), above->names.type()),
            was_opened, error);
        if (!is_top)
            above->names.advance();
        is_stopped = is_stopped || step == Walk_Step::stop;
        return 0;
    }

    const char *const place;
    std::string path;
    const Links links;
    Walk_Visitor &visitor;
    std::vector<Level> levels;
    bool is_stopped = false;
};

} // namespace

int walk_tree(const char *place, Char_Span path, Links links, Walk_Visitor &visitor) noexcept
{
    try {
        return Walk(place, path, links, visitor).run();
    } catch (...) { // no memory
        return ENOMEM;
    }
}

} // namespace zeb::engine
