# Libraries that make the engine faster where they are found; without them its results are the same.

option(ZEB_USE_OPTIONAL_LIBRARIES "Use Highway and fast_float where they are installed" ON)
add_library(zeb_optional INTERFACE)
if(NOT ZEB_USE_OPTIONAL_LIBRARIES)
  return()
endif()

find_path(HIGHWAY_INCLUDE_DIR hwy/contrib/sort/vqsort.h)
find_library(HIGHWAY_LIBRARY hwy)
find_library(HIGHWAY_CONTRIB_LIBRARY hwy_contrib)
if(HIGHWAY_INCLUDE_DIR AND HIGHWAY_LIBRARY AND HIGHWAY_CONTRIB_LIBRARY)
  target_include_directories(zeb_optional SYSTEM INTERFACE $<BUILD_INTERFACE:${HIGHWAY_INCLUDE_DIR}>)
  target_compile_definitions(zeb_optional INTERFACE ZEB_HAS_HIGHWAY)
  # A sanitizer takes long to compile the kernels: one set of each length of vectors is enough.
  if(ZEB_SANITIZE)
    target_compile_definitions(zeb_optional INTERFACE ZEB_FEW_VECTOR_TARGETS=1)
  endif()
  target_link_libraries(zeb_optional INTERFACE ${HIGHWAY_CONTRIB_LIBRARY} ${HIGHWAY_LIBRARY})
endif()

find_path(FAST_FLOAT_INCLUDE_DIR fast_float/fast_float.h)
if(FAST_FLOAT_INCLUDE_DIR)
  target_include_directories(zeb_optional SYSTEM INTERFACE $<BUILD_INTERFACE:${FAST_FLOAT_INCLUDE_DIR}>)
  target_compile_definitions(zeb_optional INTERFACE ZEB_HAS_FAST_FLOAT)
endif()
