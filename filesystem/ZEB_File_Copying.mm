#import <Korvane_ZEB/ZEB_File_Copying.h>

#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "filesystem/engine/file_copying.hpp"
#include "filesystem/engine/file_messages.hpp"

namespace messages = engine::messages;

namespace
{

using Step = engine::Copying_Step;

uint32_t report_failed_step(ZEB_File *file, ZEB_String *destination, Step step, int error)
{
    switch (step) {
    case Step::opening_source:
        return engine::report_failure(file,
                                      {messages::error_opening_source, engine::visible_path([file path]),
                                       messages::leads_to, engine::visible_path(destination)},
                                      error);
    case Step::reading:
        return engine::report_failure(file, messages::error_reading_copied, error);
    case Step::opening_destination:
    case Step::writing:
    case Step::setting_attributes:
        break;
    }
    return engine::report_failure(
        file,
        {step == Step::writing ? messages::error_writing_copied : messages::error_copying_to,
         engine::visible_path(destination)},
        error);
}

/// Reports bytes that are missing although the platform told of no error.
void report_missing_bytes(ZEB_File *file, const engine::Copy_Result &result)
{
    if (result.is_source_short && result.step != Step::reading)
        engine::report_discrepancy(file, messages::warning_length_read, result.read,
                                   messages::against_content_size, [file size],
                                   messages::while_reading_copied, ENODATA);
    if (result.read != result.written && result.step == Step::setting_attributes)
        engine::report_discrepancy(file, messages::warning_length_read, result.read,
                                   messages::against_length_written, result.written,
                                   messages::while_writing_copied, EIO);
}

uint32_t copy(ZEB_File *file, ZEB_String *destination)
{
    const engine::Platform_Path from([file path]);
    const engine::Platform_Path to(destination);
    const engine::Copy_Result result = engine::copy_file(
        {from.c_string(), to.c_string(), [file size], engine::attributes_of(file), [file load_details] != 0});
    report_missing_bytes(file, result);
    if (result.error != 0 && result.step != Step::setting_attributes)
        return report_failed_step(file, destination, result.step, to.cause_of(from.cause_of(result.error)));
    // Missing bytes are worse than missing attributes.
    if ([file last_error] == 0)
        [file set_last_error:result.error];
    engine::report_success(file, {messages::copied, engine::visible_path([file path]), messages::to,
                                  engine::visible_path(destination)});
    return 1;
}

} // namespace

@implementation ZEB_File (Copying)

- (uint32_t)copy_to:(ZEB_String *)destination
{
    ZEB_File *const file = self;
    return engine::intercepted(
        file, ZEB_FILE_COPY, @selector(intercept_copy_to:destination:),
        [=](id<ZEB_File_Interceptor> other) {
            return [other intercept_copy_to:file destination:destination];
        },
        [=] { return copy(file, destination); });
}

@end
