/*
 * What of the framework is plain C: the value types, the calendar and number functions, the version.
 */
#ifndef KORVANE_ZEB_C_H
#define KORVANE_ZEB_C_H

#include <Korvane_ZEB/ZEB_Calendar_Functions.h>
#include <Korvane_ZEB/ZEB_Number_Functions.h>
#include <Korvane_ZEB/ZEB_Types.h>
#include <Korvane_ZEB/ZEB_Version.h>

#endif
