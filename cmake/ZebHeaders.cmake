# The one list of public headers, and the staged tree in which all code finds them as <Korvane_ZEB/...>; those of
# the engine, for C++, as <Korvane_ZEB_engine/...>.

set(ZEB_STAGED_INCLUDE ${PROJECT_BINARY_DIR}/include)
file(MAKE_DIRECTORY ${ZEB_STAGED_INCLUDE}/Korvane_ZEB ${ZEB_STAGED_INCLUDE}/Korvane_ZEB_engine)
define_property(GLOBAL PROPERTY ZEB_PUBLIC_HEADERS BRIEF_DOCS "Public headers" FULL_DOCS "Their paths.")
define_property(GLOBAL PROPERTY ZEB_ENGINE_HEADERS BRIEF_DOCS "Public headers of the engine" FULL_DOCS "Their paths.")

# Links headers, by paths from the current folder, into a folder of the staged tree, and adds them to a list.
# A link, not a copy: both spellings of a header are then one file to the compiler.
function(zeb_link_headers folder list)
  foreach(header ${ARGN})
    get_filename_component(path ${header} ABSOLUTE)
    get_filename_component(name ${header} NAME)
    file(CREATE_LINK ${path} ${ZEB_STAGED_INCLUDE}/${folder}/${name} SYMBOLIC)
    set_property(GLOBAL APPEND PROPERTY ${list} ${path})
    if(TARGET ${folder})
      target_sources(${folder} PRIVATE ${path})
    endif()
  endforeach()
endfunction()

# Adds public headers of the framework.
function(zeb_stage_headers)
  zeb_link_headers(Korvane_ZEB ZEB_PUBLIC_HEADERS ${ARGN})
endfunction()

# Adds public headers of the engine.
function(zeb_stage_engine_headers)
  zeb_link_headers(Korvane_ZEB_engine ZEB_ENGINE_HEADERS ${ARGN})
endfunction()

# Writes the header that `template` becomes with lines that include the headers of a list whose names match, and
# sets `out` to its path. `directive` is #include or #import, `variable` what the template calls the lines.
function(zeb_write_header out template list folder directive variable pattern)
  get_property(headers GLOBAL PROPERTY ${list})
  set(names)
  foreach(header ${headers})
    get_filename_component(name ${header} NAME)
    list(APPEND names ${name})
  endforeach()
  list(FILTER names INCLUDE REGEX "${pattern}")
  list(SORT names)
  list(TRANSFORM names REPLACE "(.+)" "${directive} <${folder}/\\1>")
  list(JOIN names "\n" ${variable})
  get_filename_component(name ${template} NAME_WLE)
  configure_file(${PROJECT_SOURCE_DIR}/${template} ${PROJECT_BINARY_DIR}/generated/${name} @ONLY)
  set(${out} ${PROJECT_BINARY_DIR}/generated/${name} PARENT_SCOPE)
endfunction()

# Writes and stages the module map: a header without #import is plain C. On macOS the bundle gets its own, and
# the headers.
function(zeb_write_module_map)
  get_property(headers GLOBAL PROPERTY ZEB_PUBLIC_HEADERS)
  foreach(header ${headers})
    get_filename_component(name ${header} NAME)
    file(STRINGS ${header} imports REGEX "^#import" LIMIT_COUNT 1)
    if(name MATCHES "hpp$")
      string(APPEND cxx_headers "        exclude header \"${name}\"\n")
    elseif(NOT imports)
      string(APPEND plain_headers "        header \"${name}\"\n")
    endif()
  endforeach()
  set(module_kind module)
  configure_file(umbrella/module.modulemap.in ${PROJECT_BINARY_DIR}/generated/module.modulemap @ONLY)
  zeb_stage_headers(${PROJECT_BINARY_DIR}/generated/module.modulemap)
  set(module_kind "framework module")
  set(bundle_map ${PROJECT_BINARY_DIR}/generated/bundle/module.modulemap)
  configure_file(umbrella/module.modulemap.in ${bundle_map} @ONLY)
  if(APPLE)
    target_sources(Korvane_ZEB PRIVATE ${bundle_map})
    set_source_files_properties(${bundle_map} PROPERTIES MACOSX_PACKAGE_LOCATION Modules)
    set_target_properties(Korvane_ZEB PROPERTIES PUBLIC_HEADER "${headers}")
  endif()
endfunction()

# Writes the headers that name all others, once every room and family has added its own. What needs C++ is
# left out of the umbrella, for those who want it.
function(zeb_write_collective_headers)
  zeb_write_header(umbrella umbrella/Korvane_ZEB.h.in ZEB_PUBLIC_HEADERS Korvane_ZEB "#import" umbrella_imports
                   "\\.h$")
  zeb_write_header(spans arrays/ZEB_Array_Spans.hpp.in ZEB_PUBLIC_HEADERS Korvane_ZEB "#include" span_includes
                   "_Span\\.hpp$")
  zeb_stage_headers(${umbrella} ${spans})
  zeb_write_module_map()
endfunction()

# The same for the engine.
function(zeb_write_collective_engine_header)
  zeb_write_header(all umbrella/Korvane_ZEB_engine.hpp.in ZEB_ENGINE_HEADERS Korvane_ZEB_engine "#include"
                   engine_includes "\\.hpp$")
  zeb_stage_engine_headers(${all})
endfunction()
