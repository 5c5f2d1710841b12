# What Objective-C needs on this platform, gathered in the target zeb_platform: Apple's Foundation, or
# GNUstep Base on the gcc runtime.

add_library(zeb_platform INTERFACE)

if(APPLE)
  target_link_libraries(zeb_platform INTERFACE "-framework Foundation")
else()
  find_path(GNUSTEP_INCLUDE_DIR Foundation/Foundation.h PATH_SUFFIXES GNUstep REQUIRED)
  find_library(GNUSTEP_BASE_LIBRARY gnustep-base REQUIRED)
  target_include_directories(zeb_platform SYSTEM INTERFACE ${GNUSTEP_INCLUDE_DIR})
  target_compile_definitions(zeb_platform INTERFACE GNUSTEP GNUSTEP_BASE_LIBRARY=1)
  set(zeb_objc_options -fexceptions -fobjc-exceptions -fconstant-string-class=NSConstantString)
  if(CMAKE_OBJCXX_COMPILER_ID MATCHES Clang)
    # The runtime's headers are gcc's; behind clang's own, which hold another stddef.h.
    execute_process(COMMAND g++ -print-file-name=include OUTPUT_VARIABLE gcc_headers
                    OUTPUT_STRIP_TRAILING_WHITESPACE)
    list(APPEND zeb_objc_options -fobjc-runtime=gcc "SHELL:-idirafter ${gcc_headers}")
  endif()
  target_compile_options(zeb_platform INTERFACE
                         "$<$<COMPILE_LANGUAGE:OBJC,OBJCXX>:${zeb_objc_options}>")
  target_link_libraries(zeb_platform INTERFACE ${GNUSTEP_BASE_LIBRARY} objc)
endif()

# CMake passes no language standard for Objective-C++.
target_compile_options(zeb_platform INTERFACE "$<$<COMPILE_LANGUAGE:OBJCXX>:-std=c++20>")
