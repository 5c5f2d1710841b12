#import <Korvane_ZEB/ZEB_Text_Pieces.h>

#import "arrays/ZEB_T_Array_Storage_Private.h"
#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_joining.hpp"
#include "strings/engine/text_splitting.hpp"

using engine::storage_of_array;
using engine::text_of;

namespace
{

template <class Pieces, class Character>
uint32_t split(std::span<const Character> text, std::span<const Character> separator, Pieces *pieces,
               SEL selector)
{
    if (pieces == nil)
        return 0;
    const auto storage_of_string = [](auto *string) { return storage_of_array(string); };
    return engine::split_text(text, separator, storage_of_array(pieces), storage_of_string,
                              engine::Fix_Report{pieces, selector});
}

template <class String, class Strings, class Character>
void join(String *target, Strings *strings, std::span<const Character> separator, SEL selector)
{
    const auto storage_of_string = [](String *string) { return storage_of_array(string); };
    const auto elements =
        strings != nil ? std::span<String *const>(strings->data, strings->count) : std::span<String *const>();
    engine::join_texts(storage_of_array(target), elements, separator, storage_of_string,
                       engine::Fix_Report{target, selector});
}

} // namespace

@implementation ZEB_T_Vector (Splitting)

- (uint32_t)split_by_TT_word:(ZEB_T_Element)separator into:(ZEB_T_Array_Array *)pieces
{
    return split(text_of(self), std::span<const ZEB_T_Element>(&separator, 1), pieces, _cmd);
}

- (uint32_t)split_by_text:(ZEB_T_Vector *)separator into:(ZEB_T_Array_Array *)pieces
{
    return split(text_of(self), text_of(separator), pieces, _cmd);
}

@end

@implementation ZEB_T_Array (Joining)

- (void)join_strings:(ZEB_T_Array_Vector *)strings separator:(ZEB_T_Vector *)separator
{
    join(self, strings, text_of(separator), _cmd);
}

@end
