/*
 * What the streams of diagnostics share.
 */
#import <Korvane_ZEB/ZEB_Error_Stream.h>

#include <span>

namespace zeb::engine
{

/// The pieces of a diagnostic's line.
using Message_Pieces = std::span<const ZEB_Char_Span>;

} // namespace zeb::engine

@interface ZEB_Error_Stream (Diagnostics)

/** Writes the line of a diagnostic, which `verbose` lets through. */
- (void)put_diagnostic:(zeb::engine::Message_Pieces)pieces;

@end
