# What all code is compiled with, gathered in the target zeb_compiler.

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
  set(CMAKE_BUILD_TYPE RelWithDebInfo)
endif()

# Within another project its standard and its warnings stand.
if(NOT CMAKE_C_STANDARD)
  set(CMAKE_C_STANDARD 11)
endif()
if(NOT CMAKE_CXX_STANDARD)
  set(CMAKE_CXX_STANDARD 20)
endif()
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_library(zeb_compiler INTERFACE)
# Results are those of separately rounded operations; object fields are reached through references.
target_compile_options(zeb_compiler INTERFACE -ffp-contract=off -fno-strict-aliasing)
if(PROJECT_IS_TOP_LEVEL)
  target_compile_options(zeb_compiler INTERFACE -Wall -Wextra)
endif()
if(ZEB_WARNINGS_AS_ERRORS)
  target_compile_options(zeb_compiler INTERFACE -Werror)
endif()
if(ZEB_SANITIZE)
  target_compile_options(zeb_compiler INTERFACE -fsanitize=${ZEB_SANITIZE} -fno-omit-frame-pointer
                         -fno-sanitize-recover=undefined)
  target_link_options(zeb_compiler INTERFACE -fsanitize=${ZEB_SANITIZE})
endif()
