# Fills the class templates in, a family at a time.
#
# A placeholder is named as its column of the table, and is a legal identifier, so that a template stays
# Objective-C++ for formatter and language server. A line that holds nothing but the placeholder of an empty
# column is left out.

# Longer names before those that they begin with: replacement is by plain text.
set(zeb_family_columns
    ZEB_T_Element ZEB_T_Array ZEB_T_ TT_word TT_PHRASE TT_STORING TT_FORWARD_CLASSES TT_COLLECTION_FIELDS
    TT_VECTOR_FIELDS TT_KIND_STATE TT_KIND TT_DATA TT_SUM TT_WRITE_ELEMENT)
set(zeb_columns_that_may_be_empty TT_COLLECTION_FIELDS TT_VECTOR_FIELDS TT_KIND_STATE TT_SUM)

set(zeb_template_lists HEADERS PRIVATE_HEADERS SOURCES OBJECT_HEADERS OBJECT_SOURCES STRING_HEADERS STRING_SOURCES
    TEXT_SOURCES NUMBER_HEADERS NUMBER_SOURCES NUMBER_TESTS TESTS)

# Adds the templates of a room, by paths from its folder. The families are made from all of them; those of
# TESTS go to the property ZEB_FAMILY_TESTS; those of OBJECT_... are for families of objects alone, of
# STRING_... for families of strings, of TEXT_... for families of characters, of NUMBER_... for families of numbers.
function(zeb_class_templates)
  cmake_parse_arguments(arg "" "" "${zeb_template_lists}" ${ARGN})
  foreach(list ${zeb_template_lists})
    list(TRANSFORM arg_${list} PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/)
    set_property(GLOBAL APPEND PROPERTY ZEB_TEMPLATE_${list} ${arg_${list}})
  endforeach()
endfunction()

# Sets `row_COLUMN` of the caller to what the row at hand leaves out.
macro(zeb_default column value)
  if(NOT DEFINED row_${column})
    set(row_${column} "${value}")
  endif()
endmacro()

# Sets `out` to `text` with the columns of the row at hand in the place of their names.
function(zeb_fill_in out text)
  foreach(column ${zeb_family_columns})
    if("${row_${column}}" STREQUAL "")
      string(REGEX REPLACE "\n *${column};?\n" "\n" text "${text}")
    endif()
    string(REPLACE "${column}" "${row_${column}}" text "${text}")
  endforeach()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

# Writes `template`, filled in with the row at hand, and sets `out` to the file's path.
function(zeb_expand out template)
  file(READ ${template} text)
  zeb_fill_in(text "${text}")
  if(text MATCHES "TT_[A-Za-z_]+")
    message(FATAL_ERROR "${row_ZEB_T_}: ${template} leaves ${CMAKE_MATCH_0} unfilled.")
  endif()
  get_filename_component(name ${template} NAME)
  zeb_fill_in(name ${name})
  get_filename_component(room ${template} DIRECTORY)
  get_filename_component(room ${room} DIRECTORY)
  file(RELATIVE_PATH room ${PROJECT_SOURCE_DIR} ${room})
  set(made ${PROJECT_BINARY_DIR}/generated/${room}/${name})
  if(name MATCHES "\\.mm$")
    # A breakpoint on a template line stops in every family.
    string(PREPEND text "#line 1 \"${template}\"\n")
  endif()
  file(CONFIGURE OUTPUT ${made} CONTENT "${text}" @ONLY NEWLINE_STYLE UNIX)
  set_property(DIRECTORY ${PROJECT_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${template})
  set(${out} ${made} PARENT_SCOPE)
endfunction()

# One row of the table.
function(zeb_family)
  cmake_parse_arguments(PARSE_ARGV 0 row "" "${zeb_family_columns}" "")
  if(row_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "${row_ZEB_T_}: unknown column ${row_UNPARSED_ARGUMENTS}.")
  endif()
  zeb_default(ZEB_T_Array ${row_ZEB_T_}Array)
  zeb_default(TT_KIND "Plain_Elements<${row_ZEB_T_Element}>")
  zeb_default(TT_STORING "Elements are values, copied as they are.")
  zeb_default(TT_FORWARD_CLASSES "@class ZEB_Stream;")
  zeb_default(TT_WRITE_ELEMENT "engine::print_element(stream, element)")
  if(row_TT_KIND MATCHES "^Plain_Elements")
    zeb_default(TT_DATA "*data")
  else()
    zeb_default(TT_DATA "ZEB_UNRETAINED *data")
  endif()
  foreach(column ${zeb_family_columns})
    if("${row_${column}}" STREQUAL "" AND NOT column IN_LIST zeb_columns_that_may_be_empty)
      message(FATAL_ERROR "${row_ZEB_T_}: the column ${column} is empty.")
    endif()
  endforeach()

  foreach(list ${zeb_template_lists})
    get_property(${list} GLOBAL PROPERTY ZEB_TEMPLATE_${list})
  endforeach()
  if(NOT row_TT_KIND MATCHES "^Plain_Elements")
    list(APPEND HEADERS ${OBJECT_HEADERS})
    list(APPEND SOURCES ${OBJECT_SOURCES})
  endif()
  if(row_TT_KIND MATCHES "String_Policy")
    list(APPEND HEADERS ${STRING_HEADERS})
    list(APPEND SOURCES ${STRING_SOURCES})
  endif()
  if(row_TT_PHRASE MATCHES "characters")
    list(APPEND SOURCES ${TEXT_SOURCES})
  endif()
  if(NOT "${row_TT_SUM}" STREQUAL "")
    list(APPEND HEADERS ${NUMBER_HEADERS})
    list(APPEND SOURCES ${NUMBER_SOURCES})
    list(APPEND TESTS ${NUMBER_TESTS})
  endif()
  foreach(template ${HEADERS})
    zeb_expand(made ${template})
    zeb_stage_headers(${made})
  endforeach()
  foreach(template ${PRIVATE_HEADERS})
    zeb_expand(made ${template})
  endforeach()
  foreach(template ${SOURCES})
    zeb_expand(made ${template})
    target_sources(Korvane_ZEB PRIVATE ${made})
  endforeach()
  foreach(template ${TESTS})
    zeb_expand(made ${template})
    set_property(GLOBAL APPEND PROPERTY ZEB_FAMILY_TESTS ${made})
  endforeach()
endfunction()
