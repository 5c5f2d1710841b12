#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"

void engine::take_settings(ZEB_File *file, ZEB_File *other)
{
    file->first_general_setting = other->first_general_setting;
    file->second_general_setting = other->second_general_setting;
    file->third_general_setting = other->third_general_setting;
    file->load_details = other->load_details;
    file->contents_compressed = other->contents_compressed;
    file->log_actions = other->log_actions;
    file->report_errors = other->report_errors;
}

@implementation ZEB_File (Errors)

- (int32_t)last_error
{
    return last_error;
}

- (void)set_last_error:(int32_t)error
{
    last_error = error;
}

@end

@implementation ZEB_File (Settings)

- (uint8_t)first_general_setting
{
    return first_general_setting;
}

- (void)set_first_general_setting:(uint8_t)value
{
    first_general_setting = value != 0;
}

- (uint8_t)second_general_setting
{
    return second_general_setting;
}

- (void)set_second_general_setting:(uint8_t)value
{
    second_general_setting = value != 0;
}

- (uint8_t)third_general_setting
{
    return third_general_setting;
}

- (void)set_third_general_setting:(uint8_t)value
{
    third_general_setting = value != 0;
}

- (uint8_t)load_details
{
    return load_details;
}

- (void)set_load_details:(uint8_t)value
{
    load_details = value != 0;
}

- (uint8_t)contents_compressed
{
    return contents_compressed;
}

- (void)set_contents_compressed:(uint8_t)value
{
    contents_compressed = value != 0;
}

- (uint32_t)greatest_contents_size
{
    return greatest_contents_size;
}

- (void)set_greatest_contents_size:(uint32_t)value
{
    greatest_contents_size = value;
}

- (uint8_t)log_actions
{
    return log_actions;
}

- (void)set_log_actions:(uint8_t)value
{
    log_actions = value != 0;
}

- (uint8_t)report_errors
{
    return report_errors;
}

- (void)set_report_errors:(uint8_t)value
{
    report_errors = value != 0;
}

- (id<ZEB_File_Interceptor>)interceptor
{
    return interceptor;
}

- (void)set_interceptor:(id<ZEB_File_Interceptor>)object
{
    interceptor = object;
}

@end
