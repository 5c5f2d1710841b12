/// What most files include from outside: it takes longer to read than many of them, and so is precompiled.
/// Files still include what they use.
#pragma once

#ifdef __OBJC__
#import <Foundation/Foundation.h>
#endif

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
#include <span>
#include <string_view>
