# Compiler options shared by every target.
add_compile_options(-Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_compile_options(-Wno-restrict) # false alarms of gcc 12 on joined strings
endif()
if(LIRMETO_SANITIZE)
  add_compile_options(-Werror -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(LIRMETO_TIDY)
  # Generated sources (moc, resources) lie in the build tree: the nearest file there switches the checks off for them.
  file(WRITE ${CMAKE_BINARY_DIR}/.clang-tidy "Checks: '-*,llvm-twine-local'\n")
  set(CMAKE_CXX_CLANG_TIDY clang-tidy --quiet --extra-arg=-Wno-unknown-warning-option)
endif()
