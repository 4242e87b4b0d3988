# Compiler settings that every target of the project shares, and the one way to declare a folder
# of src/: a static library that names the folders it stands on.

add_library(kestrel_options INTERFACE)
target_include_directories(kestrel_options INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR})
target_compile_options(kestrel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
  # g++ 12 warns of overlapping copies inside std::string's own operator+ (GCC bug 105329).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  # A product that is fused with an addition is not rounded: halves would fall to the other side on
  # processors that can do so.
  -ffp-contract=off)
if(KESTREL_SANITIZE)
  target_compile_options(kestrel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kestrel_options INTERFACE -fsanitize=address,undefined)
endif()
if(KESTREL_FUZZ)
  target_compile_options(kestrel_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# kestrel_folder(<target> [QT] [APART] [SOURCES <files>] [DEPENDS <targets>]): QT where Qt is known,
# APART where sources are never joined, since local names of two of them are alike.
# Every header of the folder compiles alone: those that a source begins with do so there, and the
# target all_verify_interface_header_sets sees to the others.
function(kestrel_folder name)
  cmake_parse_arguments(ARG "QT;APART" "" "SOURCES;DEPENDS" ${ARGN})
  if(ARG_SOURCES)
    set(scope PUBLIC)
    add_library(${name} STATIC ${ARG_SOURCES})
    # Few enough for all processors to have their part.
    set_target_properties(${name} PROPERTIES UNITY_BUILD_BATCH_SIZE 10)
    if(ARG_APART)
      set_target_properties(${name} PROPERTIES UNITY_BUILD OFF)
    endif()
    if(KESTREL_PRECOMPILE)
      kestrel_precompile(${name} ${ARG_QT})
    endif()
  else()
    set(scope INTERFACE)
    add_library(${name} INTERFACE)
  endif()
  target_link_libraries(${name} ${scope} kestrel_options ${ARG_DEPENDS})
  kestrel_headers_to_verify(headers ${ARG_SOURCES})
  target_sources(${name} ${scope}
    FILE_SET HEADERS BASE_DIRS ${CMAKE_SOURCE_DIR} FILES ${headers})
endfunction()

# Headers that many sources include, once for all folders whose compiler flags are the same.
function(kestrel_precompile name with_qt)
  if(with_qt)
    set(owner kestrel_desktop)
    set(headers <algorithm> <array> <chrono> <functional> <map> <optional> <span> <QtWidgets>)
  else()
    set(owner kestrel_gdi)
    set(headers <algorithm> <array> <functional> <map> <memory> <optional> <span> <string> <vector>)
  endif()
  if(name STREQUAL owner)
    target_precompile_headers(${name} PRIVATE ${headers})
  else()
    target_precompile_headers(${name} REUSE_FROM ${owner})
  endif()
endfunction()

# Sets the variable to the headers beside these sources that are the first include of none.
function(kestrel_headers_to_verify variable)
  set(patterns *.h)
  foreach(source ${ARGN})
    cmake_path(REPLACE_FILENAME source *.h)
    list(APPEND patterns ${source})
  endforeach()
  file(GLOB headers CONFIGURE_DEPENDS ${patterns})
  foreach(source ${ARGN})
    file(STRINGS ${source} first REGEX "^#include" LIMIT_COUNT 1)
    string(REGEX REPLACE "^#include \"(.*)\"$" "\\1" first "${first}")
    list(REMOVE_ITEM headers ${CMAKE_SOURCE_DIR}/${first} ${CMAKE_SOURCE_DIR}/src/${first})
  endforeach()
  set(${variable} ${headers} PARENT_SCOPE)
endfunction()
