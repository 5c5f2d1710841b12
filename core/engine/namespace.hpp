/// The engine's namespace, `zeb::engine`, and its short name. `zeb` itself holds what C++ users of the
/// framework see.
#pragma once

namespace zeb::engine
{
}

/// For the framework's own classes and tests.
namespace engine = zeb::engine;
