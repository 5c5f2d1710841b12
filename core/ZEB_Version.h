/*
 * The version of the framework, in plain C.
 */
#ifndef ZEB_VERSION_H
#define ZEB_VERSION_H

#include <Korvane_ZEB/ZEB_Types.h>

ZEB_EXTERN_C_BEGIN

/** The version as one number: major and minor, 1.0 for the first release. */
ZEB_EXPORT extern const double Korvane_ZEBVersionNumber;

/** The version as a null-terminated text. */
ZEB_EXPORT extern const unsigned char Korvane_ZEBVersionString[];

ZEB_EXTERN_C_END

#endif
