/*
 * The standard directories of users, as paths in 8-bit strings.
 */
#import <Korvane_ZEB/ZEB_String.h>

/**
 * Each operation sets a string to a path in UTF-8 and puts a null behind it, which the count does not
 * include. A link becomes an owner; where there is no path, it refuses the null as it always does.
 */
@interface ZEB_String (Standard_Directories)

/** The home directory of the user who runs the process. */
+ (void)set_to_home_directory:(ZEB_String *)string;

/** That user's library and documents directories. Where the platform has none, the string keeps its
    text. */
+ (void)set_to_library_directory:(ZEB_String *)string;
+ (void)set_to_documents_directory:(ZEB_String *)string;

/** The home directory of a user by name, in UTF-8; empty for a user that is not known. */
+ (void)set_to_home_directory_of_user:(ZEB_String *)string user_name:(ZEB_String *)user_name;

@end
