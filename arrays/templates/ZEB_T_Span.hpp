/// The elements of vectors of TT_PHRASE as a span, for C++.
#pragma once

#import <Korvane_ZEB/ZEB_T_Vector.h>

#include <span>

ZEB_ASSUME_NONNULL_BEGIN

namespace zeb
{

/// Returns the elements of a vector, array or link, readable and writable in place; an empty span for nil.
/// Any change of the vector's block or count invalidates the span.
inline std::span<TT_SLOT> elements(ZEB_T_Vector *ZEB_NULLABLE vector)
{
    return {[vector TT_word_data], [vector count]};
}

} // namespace zeb

ZEB_ASSUME_NONNULL_END
