#include <Korvane_ZEB/ZEB_Start_Up.h>

#import <Korvane_ZEB/ZEB_Defaults.h>
#import <Korvane_ZEB/ZEB_Defaults_Start_Up.h>
#import <Korvane_ZEB/ZEB_Directory.h>
#import <Korvane_ZEB/ZEB_Error_Stream.h>
#import <Korvane_ZEB/ZEB_File_Start_Up.h>
#include <Korvane_ZEB/ZEB_Unit_Start_Up.h>

void ZC_start_up_framework(void)
{
    [ZEB_Stream shared_stream];
    [ZEB_Error_Stream shared_error_stream];
    ZC_start_up_file_system();
    ZC_start_up_defaults_domain();
    ZC_start_up_debug_logging();
    ZC_start_up_unit_catalog();
    [ZEB_Defaults shared_suite];    // and ZEB_Suite_Defaults shared
    [ZEB_Defaults shared_standard]; // and ZEB_Standard_Defaults shared
    [ZEB_Directory temporary_directory_path];
    [ZEB_Directory ZEB_path_for_resources];
    [ZEB_Directory home_directory_path];
    [ZEB_Directory library_directory_path];
    [ZEB_Directory documents_directory_path];
}
