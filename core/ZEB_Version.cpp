#include <Korvane_ZEB/ZEB_Version.h>

// Both values come from the project() call of the build.
const double Korvane_ZEBVersionNumber = ZEB_VERSION_NUMBER;
const unsigned char Korvane_ZEBVersionString[] = "Korvane_ZEB " ZEB_VERSION_TEXT;
