/*
 * The standard directories of users, as paths in 8-bit strings.
 */
#import <Korvane_ZEB/ZEB_String.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Each operation sets a string to a path in UTF-8, followed by a null that the count does not include. A link
 * becomes an owner. Without a path, a link reports the refusal of `append_null_terminator`.
 */
@interface ZEB_String (Standard_Directories)

/** Sets the string to the home directory of the user who runs the process. */
+ (void)set_to_home_directory:(ZEB_String *ZEB_NULLABLE)string;

/** Set the string to that user's library or documents directory. If the platform has none, the string keeps
    its text. */
+ (void)set_to_library_directory:(ZEB_String *ZEB_NULLABLE)string;
+ (void)set_to_documents_directory:(ZEB_String *ZEB_NULLABLE)string;

/** Sets the string to the home directory of the named user (in UTF-8); to an empty text for an unknown
    user. */
+ (void)set_to_home_directory_of_user:(ZEB_String *ZEB_NULLABLE)string
                            user_name:(ZEB_String *ZEB_NULLABLE)user_name;

@end

ZEB_ASSUME_NONNULL_END
