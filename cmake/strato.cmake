# strato(NAME BELOW...): the folder src/NAME as a static library that sees only what stands below it.
#
# Each layer publishes its headers through a private include root that holds one link, so that `#include <core/...>` compiles
# only in a layer that links core. A header from above, from the side, or from Qt outside ui/ is simply not found.
function(strato nome)
  file(GLOB sorgenti CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${nome}/*.cpp)
  set(radice ${CMAKE_BINARY_DIR}/strati/${nome})
  file(MAKE_DIRECTORY ${radice})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${nome} ${radice}/${nome} SYMBOLIC)
  add_library(${nome} STATIC ${sorgenti})
  target_include_directories(${nome} PUBLIC ${radice})
  target_link_libraries(${nome} PUBLIC ${ARGN})
  precompila(${nome} logica)
endfunction()
