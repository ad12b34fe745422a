# strato(NAME BELOW...): the folder src/NAME as a static library that sees only what stands below it.
#
# Each layer publishes its headers through a private include root that holds one link, so that `#include <core/...>` compiles
# only in a layer that links core. A header from above, from the side, or from Qt outside ui/ is simply not found.
#
# What a layer has in a folder of its own for each system it runs on, src/NAME/linux and src/NAME/windows, is built there alone.
set(LIRMETO_OSPITE linux)
set(LIRMETO_ALTRO_OSPITE windows)
if(WIN32)
  set(LIRMETO_OSPITE windows)
  set(LIRMETO_ALTRO_OSPITE linux)
endif()

function(strato nome)
  set(cartella ${CMAKE_CURRENT_SOURCE_DIR}/${nome})
  file(GLOB sorgenti CONFIGURE_DEPENDS ${cartella}/*.cpp ${cartella}/${LIRMETO_OSPITE}/*.cpp)
  set(radice ${CMAKE_BINARY_DIR}/strati/${nome})
  file(MAKE_DIRECTORY ${radice})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${nome} ${radice}/${nome} SYMBOLIC)
  add_library(${nome} STATIC ${sorgenti})
  target_include_directories(${nome} PUBLIC ${radice})
  target_link_libraries(${nome} PUBLIC ${ARGN})
  precompila(${nome} logica)
endfunction()
