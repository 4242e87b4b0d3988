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

# kestrel_folder(<target> SOURCES <files> [DEPENDS <targets>])
function(kestrel_folder name)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC kestrel_options ${ARG_DEPENDS})
endfunction()
