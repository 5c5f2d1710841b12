#import <Korvane_ZEB/ZEB_Directory.h>

#import <Korvane_ZEB/ZEB_File_Creation.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#import "filesystem/ZEB_File_Private.h"

#include "core/engine/c_text.hpp"
#include "core/engine/namespace.hpp"
#include "core/engine/notice.hpp"
#include "filesystem/engine/file_messages.hpp"
#include "filesystem/engine/tree_removal.hpp"

#include <string.h>

namespace messages = engine::messages;

@interface ZEB_Directory (Sub_Directory)
- (ZEB_Directory *)prepared_sub_directory;
- (void)take_settings_of_parent;
@end

namespace
{

/// A null-terminated path of a directory: without the slashes at its end, behind which a link would be
/// followed.
class Directory_Place
{
public:
    explicit Directory_Place(ZEB_String *path)
        : platform_path(path), text(platform_path.c_string(), length_of(platform_path.c_string()))
    {
    }

    const char *c_string() const { return text.c_string(); }
    int cause_of(int error) const { return platform_path.cause_of(error); }

private:
    static uint32_t length_of(const char *path)
    {
        return engine::length_without_end_slashes({path, static_cast<uint32_t>(strlen(path))});
    }

    engine::Platform_Path platform_path;
    engine::C_Text text;
};

engine::Links links_of(ZEB_Directory *directory)
{
    return directory->links_are_entries ? engine::Links::are_entries : engine::Links::are_followed;
}

/// Reports what became of the entries of a tree.
class Removal_Messages final : public engine::Removal_Report
{
public:
    explicit Removal_Messages(ZEB_File *entry) : file(entry) {}

    void tell(ZEB_Char_Span path, bool is_directory, int error) override
    {
        if (error != 0)
            engine::report_failure(
                file,
                {is_directory ? messages::error_removing_directory : messages::error_removing_file, path},
                error);
        else
            engine::report_success(
                file, {is_directory ? messages::removed_directory : messages::removed_file, path});
    }

private:
    ZEB_File *file;
};

/// Tests the rights to the entries of a tree.
class Access_Test final : public engine::Walk_Visitor
{
public:
    Access_Test(ZEB_Directory *top, engine::Access_Rights rights) : directory(top), wanted(rights) {}

    engine::Walk_Step at_entry(const engine::Walk_Entry &entry) override
    {
        ZEB_File *const child = directory->child;
        take_status(child, entry);
        if (child->exists && child->kind == ZEB_FILE_KIND_DIRECTORY)
            return directory->recursive ? enter(entry) : engine::Walk_Step::next;
        return step_if(engine::covers(engine::access_of(child), {wanted.read, wanted.write, false}),
                       engine::Walk_Step::next);
    }

    engine::Walk_Step at_end(const engine::Walk_Entry &entry, bool was_opened, int error) override
    {
        if (was_opened)
            engine::report_success(directory, {messages::tested_directory, entry.path});
        if (error != 0)
            first_error = error;
        directory = directory->parent_directory;
        return step_if(error == 0, engine::Walk_Step::next);
    }

    bool is_passed() const { return passes; }
    int error() const { return first_error; }

private:
    engine::Walk_Step enter(const engine::Walk_Entry &entry)
    {
        ZEB_Directory *const below = [directory prepared_sub_directory];
        take_status(below, entry);
        if (engine::covers(engine::access_of(below), wanted))
            directory = below;
        return step_if(directory == below, engine::Walk_Step::into);
    }

    engine::Walk_Step step_if(bool is_granted, engine::Walk_Step step)
    {
        passes = passes && is_granted;
        return is_granted ? step : engine::Walk_Step::stop;
    }

    void take_status(ZEB_File *file, const engine::Walk_Entry &entry)
    {
        engine::File_Status status{};
        const int error = engine::read_status_in(entry.directory, entry.name, links_of(directory), status);
        [file->path copy_c_string:entry.path.char_c_array length:entry.path.length];
        [file->path append_null_terminator];
        [file take_status:status error:error];
    }

    ZEB_Directory *directory; // in which the walk is
    const engine::Access_Rights wanted;
    bool passes = true;
    int first_error = 0;
};

} // namespace

@implementation ZEB_Directory

+ (const char *)get_KVX_proprietary_software_notice
{
    return engine::proprietary_software_notice;
}

- (id)init
{
    return [self init_with_parent_directory:nil];
}

- (id)init_with_parent_directory:(ZEB_Directory *)parent
{
    self = [super init];
    if (self == nil)
        return nil;
    owner_execute = 1;
    recursive = links_are_entries = 1;
    child = [[ZEB_File alloc] init];
    parent_directory = parent;
    return self;
}

- (void)dealloc
{
    if (sub_directory != nil)
        sub_directory->parent_directory = nil;
    [sub_directory release];
    [child release];
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone
{
    ZEB_Directory *const made = [super copyWithZone:zone];
    [made set_recursive:recursive];
    [made set_links_are_entries:links_are_entries];
    return made;
}

- (uint8_t)recursive
{
    return recursive;
}

- (void)set_recursive:(uint8_t)value
{
    recursive = value != 0;
}

- (uint8_t)links_are_entries
{
    return links_are_entries;
}

- (void)set_links_are_entries:(uint8_t)value
{
    links_are_entries = value != 0;
}

- (ZEB_File *)child
{
    return child;
}

- (ZEB_Directory *)sub_directory
{
    return sub_directory;
}

- (ZEB_Directory *)parent_directory
{
    return parent_directory;
}

/// Returns the sub-directory, made on the first call, with this directory's settings.
- (ZEB_Directory *)prepared_sub_directory
{
    if (sub_directory == nil)
        sub_directory = [[ZEB_Directory alloc] init_with_parent_directory:self];
    [sub_directory take_settings_of_parent];
    return sub_directory;
}

- (void)take_settings_of_parent
{
    recursive = parent_directory->recursive;
    links_are_entries = parent_directory->links_are_entries;
    engine::take_settings(self, parent_directory);
    engine::take_settings(child, parent_directory);
}

- (uint8_t)has_access:(uint8_t)execute write:(uint8_t)write read:(uint8_t)read
{
    last_error = 0;
    if (![super has_access:execute write:write read:read])
        return 0;
    engine::take_settings(child, self);
    const Directory_Place place(path);
    Access_Test test(self, {read != 0, write != 0, execute != 0});
    const int error = engine::walk_tree(place.c_string(), engine::visible_path(path), links_of(self), test);
    last_error = place.cause_of(error != 0 ? error : test.error());
    return error == 0 && test.is_passed() ? 1 : 0;
}

- (uint32_t)remove
{
    // Asks the interceptor; what follows is `remove_itself` below.
    return [super remove];
}

- (uint32_t)remove_itself
{
    const Directory_Place place(path);
    engine::File_Status status;
    const int missing = engine::read_status(place.c_string(), status);
    if (missing != 0) {
        engine::report_failure(self, messages::error_missing_directory, place.cause_of(missing));
        return 0;
    }
    Removal_Messages report(self);
    last_error = engine::remove_tree(place.c_string(), engine::visible_path(path), links_of(self), report);
    return last_error == 0 ? 1 : 0;
}

@end
