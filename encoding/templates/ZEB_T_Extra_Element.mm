#import "encoding/ZEB_Extra_Element_Private.h"

#import "arrays/ZEB_Printing_Private.h"
#import "arrays/ZEB_T_Storage_Private.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/element_past_end.hpp"

@implementation ZEB_T_Vector (Extra_Element)

- (void)send_element_past_end_to_stream:(ZEB_Stream *)stream
{
    ZEB_T_Element const element = 0;
    TT_WRITE_ELEMENT;
}

@end

@implementation ZEB_T_Array (Extra_Element)

- (void)send_element_past_end_to_stream:(ZEB_Stream *)stream
{
    ZEB_T_Element const element = engine::element_past_end(engine::storage_of_array(self));
    TT_WRITE_ELEMENT;
}

@end
