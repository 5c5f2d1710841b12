/// The text of the proprietary notice.
#pragma once

namespace zeb::engine
{

inline constexpr char proprietary_software_notice[] =
    "Korvane_ZEB. Proprietary software of the Korvane project; all rights reserved.";

} // namespace zeb::engine
