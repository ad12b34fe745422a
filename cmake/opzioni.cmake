# Compiler options shared by every target.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-restrict) # false alarms of gcc 12 on joined strings
else()
  add_compile_options(-Wreserved-identifier)
endif()
if(LIRMETO_SANITIZE)
  add_compile_options(-Werror -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(WIN32)
  # Texts in UTF-16, no more names than needed; the deepest calls want as much room as other systems give.
  add_compile_definitions(UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0A00)
  add_link_options(-Wl,--stack,8388608)
  if(NOT LIRMETO_FINESTRE)
    add_link_options(-static) # with Qt the libraries of the compiler are shared
  endif()
  return()
endif()
find_program(LLD NAMES ld.lld)
if(LLD)
  add_link_options(-fuse-ld=lld)
endif()
