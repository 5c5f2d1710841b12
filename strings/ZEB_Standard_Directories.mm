#import <Korvane_ZEB/ZEB_Standard_Directories.h>

#import <Korvane_ZEB/ZEB_NSString_Conversion.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

namespace
{

void set_to_path(ZEB_String *string, NSString *path)
{
    [string set_from_NSString:path type:ZEB_ENCODING_UTF8_PATH];
    [string append_null_terminator];
}

void set_to_search_path(ZEB_String *string, NSSearchPathDirectory directory)
{
    NSArray *const paths = NSSearchPathForDirectoriesInDomains(directory, NSUserDomainMask, YES);
    if ([paths count] != 0)
        set_to_path(string, [paths objectAtIndex:0]);
    else
        [string append_null_terminator];
}

} // namespace

@implementation ZEB_String (Standard_Directories)

+ (void)set_to_home_directory:(ZEB_String *)string
{
    set_to_path(string, NSHomeDirectory());
}

+ (void)set_to_library_directory:(ZEB_String *)string
{
    set_to_search_path(string, NSLibraryDirectory);
}

+ (void)set_to_documents_directory:(ZEB_String *)string
{
    set_to_search_path(string, NSDocumentDirectory);
}

+ (void)set_to_home_directory_of_user:(ZEB_String *)string user_name:(ZEB_String *)user_name
{
    NSString *const user = [user_name NSString_path_value];
    set_to_path(string, user != nil ? NSHomeDirectoryForUser(user) : nil);
}

@end
