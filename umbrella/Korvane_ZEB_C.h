/*
 * The plain C headers of the framework: value types, the functions of calendar, numbers and byte order, and
 * the version.
 */
#ifndef KORVANE_ZEB_C_H
#define KORVANE_ZEB_C_H

#include <Korvane_ZEB/ZEB_Byte_Order.h>
#include <Korvane_ZEB/ZEB_Calendar_Functions.h>
#include <Korvane_ZEB/ZEB_Hexadecimal.h>
#include <Korvane_ZEB/ZEB_Number_Functions.h>
#include <Korvane_ZEB/ZEB_Types.h>
#include <Korvane_ZEB/ZEB_Version.h>

#endif
