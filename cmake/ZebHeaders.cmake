# The one list of public headers, and the staged tree in which all code finds them as <Korvane_ZEB/...>.

set(ZEB_STAGED_INCLUDE ${PROJECT_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${ZEB_STAGED_INCLUDE}/Korvane_ZEB)
define_property(GLOBAL PROPERTY ZEB_PUBLIC_HEADERS BRIEF_DOCS "Public headers" FULL_DOCS "Their paths.")

# Adds public headers, by paths from the current folder. A link, not a copy: both spellings of a header
# are then one file to the compiler.
function(zeb_stage_headers)
  foreach(header ${ARGN})
    get_filename_component(path ${header} ABSOLUTE)
    get_filename_component(name ${header} NAME)
    file(CREATE_LINK ${path} ${ZEB_STAGED_INCLUDE}/Korvane_ZEB/${name} SYMBOLIC)
    set_property(GLOBAL APPEND PROPERTY ZEB_PUBLIC_HEADERS ${path})
    target_sources(Korvane_ZEB PRIVATE ${path})
  endforeach()
endfunction()

# Writes the umbrella header over all public headers, once every room and family has added its own.
function(zeb_write_umbrella)
  get_property(headers GLOBAL PROPERTY ZEB_PUBLIC_HEADERS)
  set(names)
  foreach(header ${headers})
    get_filename_component(name ${header} NAME)
    list(APPEND names ${name})
  endforeach()
  # What needs C++ is included by those who want it.
  list(FILTER names EXCLUDE REGEX "\\.hpp$")
  list(SORT names)
  list(TRANSFORM names REPLACE "(.+)" "#import <Korvane_ZEB/\\1>")
  list(JOIN names "\n" umbrella_imports)
  set(umbrella ${PROJECT_BINARY_DIR}/generated/Korvane_ZEB.h)
  configure_file(${PROJECT_SOURCE_DIR}/umbrella/Korvane_ZEB.h.in ${umbrella} @ONLY)
  zeb_stage_headers(${umbrella})
endfunction()
