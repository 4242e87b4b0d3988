# libpng as kestrel_png: shared, or the static archives for a program that has the property
# KESTREL_STATIC. KESTREL_STATIC_PNG tells whether such a program can be linked at all.

find_package(PNG REQUIRED)
find_library(PNG_ARCHIVE libpng.a)
find_library(ZLIB_ARCHIVE libz.a)
find_library(C_ARCHIVE libc.a)
if(PNG_ARCHIVE AND ZLIB_ARCHIVE AND C_ARCHIVE)
  set(KESTREL_STATIC_PNG ON)
else()
  set(KESTREL_STATIC_PNG OFF)
endif()

add_library(kestrel_png INTERFACE)
target_include_directories(kestrel_png SYSTEM INTERFACE ${PNG_INCLUDE_DIRS})
target_link_libraries(kestrel_png INTERFACE
  $<IF:$<BOOL:$<TARGET_PROPERTY:KESTREL_STATIC>>,${PNG_ARCHIVE};${ZLIB_ARCHIVE};m,PNG::PNG>)
