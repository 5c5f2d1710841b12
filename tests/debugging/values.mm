/// Values for a debugger to show.
#import <Korvane_ZEB/Korvane_ZEB.h>

extern "C" void stop_here() {}

int main()
{
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    ZEB_Double_Array *doubles = [ZEB_Double_Array array_with_capacity:0];
    for (int i = 0; i < 100; ++i)
        [doubles append_double:i * 0.5];
    ZEB_Double_Array *link = [ZEB_Double_Array link_to_doubles:[doubles double_data] count:3];
    uint8_t raw[] = {7, 200};
    ZEB_Byte_Vector *bytes = [[[ZEB_Byte_Vector alloc] init_as_link_to_bytes:raw count:2] autorelease];
    ZEB_String *string = [ZEB_String string_with_c_string:"hello"];
    ZEB_Wide_String *wide = [ZEB_Wide_String string_with_c_string:"wide"];
    ZEB_String_Array *strings = [ZEB_String_Array array_with_capacity:0];
    [strings append_string:string];
    ZEB_Object_Array *objects = [ZEB_Object_Array array_with_capacity:0];
    [objects append_object:link];
    id object = string;
    ZEB_Int_Array *none = nil;
    stop_here();
    [pool drain];
    return bytes == nil || wide == nil || object == nil || none != nil;
}
