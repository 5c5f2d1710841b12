#include "filesystem/engine/tree_removal.hpp"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace zeb::engine
{
namespace
{

int removal_error(const Walk_Entry &entry, int flags) noexcept
{
    return unlinkat(entry.directory, entry.name, flags) == 0 ? 0 : errno;
}

class Removal final : public Walk_Visitor
{
public:
    Removal(Links link_handling, Removal_Report &receiver) : links(link_handling), report(receiver) {}

    Walk_Step at_entry(const Walk_Entry &entry) override
    {
        if (is_directory(entry))
            return Walk_Step::into;
        tell(entry, false, removal_error(entry, 0));
        return Walk_Step::next;
    }

    Walk_Step at_end(const Walk_Entry &directory, bool was_opened, int error) override
    {
        // An entry that was exchanged since its name was read, or a link back into the walk, is no directory.
        if (!was_opened && directory.directory != AT_FDCWD && (error == ELOOP || error == ENOTDIR)) {
            tell(directory, false, removal_error(directory, 0));
            return Walk_Step::next;
        }
        const int own_error = removal_error(directory, AT_REMOVEDIR);
        tell(directory, true, own_error != 0 && error != 0 ? error : own_error);
        return Walk_Step::next;
    }

    int error() const { return first_error; }

private:
    void tell(const Walk_Entry &entry, bool is_directory, int error)
    {
        if (first_error == 0)
            first_error = error;
        report.tell(entry.path, is_directory, error);
    }

    bool is_directory(const Walk_Entry &entry) const noexcept
    {
        const bool has_unknown_type = entry.type == Entry_Type::unknown ||
                                      (entry.type == Entry_Type::link && links == Links::are_followed);
        if (!has_unknown_type)
            return entry.type == Entry_Type::directory;
        File_Status status;
        return read_status_in(entry.directory, entry.name, links, status) == 0 &&
               status.kind == ZEB_FILE_KIND_DIRECTORY;
    }

    const Links links;
    Removal_Report &report;
    int first_error = 0;
};

} // namespace

int remove_tree(const char *place, Char_Span path, Links links, Removal_Report &report) noexcept
{
    Removal removal(links, report);
    const int error = walk_tree(place, path, links, removal);
    if (error != 0)
        report.tell(path, true, error);
    return error != 0 ? error : removal.error();
}

} // namespace zeb::engine
