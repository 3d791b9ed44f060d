# What makes a program that listens on the network harder to misuse.
include(CheckCXXCompilerFlag)

# esclavo_harden(TARGET): everything that links the interface target is built with checked library calls, stack
# protection and control-flow marks where the processor knows them, position-independent, with read-only relocations.
function(esclavo_harden target)
  target_compile_options(${target} INTERFACE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fPIE)
  set(CMAKE_REQUIRED_FLAGS -Werror) # clang only warns of flags of other processors
  foreach(flag -fstack-clash-protection -fcf-protection -mbranch-protection=standard)
    string(MAKE_C_IDENTIFIER "COMPILER_KNOWS${flag}" known)
    check_cxx_compiler_flag(${flag} ${known})
    if(${known})
      target_compile_options(${target} INTERFACE ${flag})
    endif()
  endforeach()
  target_link_options(${target} INTERFACE -pie -Wl,-z,relro,-z,now)
endfunction()
