# What compilers and loaders can do against faults that slip through: kestrel_harden(<target>) gives
# it to what the target compiles and passes it on. Each flag where the compiler takes it.

include(CheckCXXCompilerFlag)

function(kestrel_harden target)
  foreach(flag -fPIE -fstack-protector-strong -fstack-clash-protection -fcf-protection)
    string(MAKE_C_IDENTIFIER KESTREL_HAS${flag} known)
    check_cxx_compiler_flag("-Werror ${flag}" ${known})
    if(${known})
      target_compile_options(${target} INTERFACE ${flag})
    endif()
  endforeach()
  # Checked copies exist in optimised code alone; level 3 came with g++ 12.
  set(level 2)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL GNU OR CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12)
    set(level 3)
  endif()
  target_compile_options(${target} INTERFACE
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=${level}>)
  target_link_options(${target} INTERFACE
    $<IF:$<BOOL:$<TARGET_PROPERTY:KESTREL_STATIC>>,-static-pie,-pie>
    -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endfunction()
