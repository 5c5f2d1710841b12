#import <Korvane_ZEB/ZEB_Text_Trimming.h>

#import "strings/ZEB_Text_Private.h"

#include "core/engine/namespace.hpp"
#include "strings/engine/text_trimming.hpp"

using engine::storage_of_array;
using engine::Trimmed_Ends;

@implementation ZEB_T_Array (Trimming)

- (void)trim_whitespace
{
    engine::trim_text(storage_of_array(self), Trimmed_Ends::both, engine::Is_White_Space(),
                      engine::Fix_Report{self, _cmd});
}

- (void)trim_whitespace_left
{
    engine::trim_text(storage_of_array(self), Trimmed_Ends::left, engine::Is_White_Space(),
                      engine::Fix_Report{self, _cmd});
}

- (void)trim_whitespace_right
{
    engine::trim_text(storage_of_array(self), Trimmed_Ends::right, engine::Is_White_Space(),
                      engine::Fix_Report{self, _cmd});
}

- (void)trim_chars_in:(ZEB_T_Vector *)chars
{
    engine::trim_text(storage_of_array(self), Trimmed_Ends::both, engine::is_one_of(engine::text_of(chars)),
                      engine::Fix_Report{self, _cmd});
}

@end
