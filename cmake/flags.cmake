# Flags that every target shares.
add_library(orvik_flags INTERFACE)
target_include_directories(orvik_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(orvik_flags INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wconversion
                                             -Wno-sign-conversion -Werror)
# GCC 12 takes "literal" + text for overlapping copies where there are none.
target_compile_options(orvik_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

option(ORVIK_SANITIZE "Address and undefined behaviour sanitizers" OFF)
if(ORVIK_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

if(WIN32)
  # One file that needs no DLL of the compiler's.
  add_link_options(-static)
  # GCC keeps vectors of more than 16 bytes on a stack that Windows aligns to 16.
  add_compile_options(-Wa,-muse-unaligned-vector-move)
  add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0A00)
endif()
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)
