/// The elements of vectors of TT_PHRASE as a span, for C++.
#pragma once

#import <Korvane_ZEB/ZEB_T_Vector.h>

#include <span>

namespace zeb
{

/// The live elements of a vector, array or link, to be read and written in place; none for nil. Whatever
/// changes the vector's block or count ends the span.
inline std::span<ZEB_T_Element> elements(ZEB_T_Vector *vector)
{
    return {[vector TT_word_data], [vector count]};
}

} // namespace zeb
