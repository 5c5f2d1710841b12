/// The engine stands in `zeb::engine`; `zeb` itself is what C++ users of the framework see.
#pragma once

namespace zeb::engine
{
}

/// For the framework's own classes and tests.
namespace engine = zeb::engine;
