# precompila(TARGET KIND [LIBRARIES...]): TARGET takes the headers of its kind already compiled. The first to ask for a kind
# has them compiled, with the libraries given, for all that come after it.
set(PRECOMPILATE_logica <algorithm> <array> <charconv> <cmath> <cstddef> <cstdint> <functional> <limits> <map> <memory>
    <numbers> <numeric> <optional> <set> <span> <string> <string_view> <unordered_map> <utility> <variant> <vector>)
set(PRECOMPILATE_prove ${PRECOMPILATE_logica} <filesystem> <random> <gtest/gtest.h>)
set(PRECOMPILATE_finestre ${PRECOMPILATE_logica} <QAction> <QApplication> <QCheckBox> <QComboBox> <QDialog> <QGridLayout>
    <QKeyEvent> <QLabel> <QLineEdit> <QListView> <QListWidget> <QLocale> <QMainWindow> <QMenuBar> <QMessageBox> <QMouseEvent>
    <QPainter> <QPushButton> <QScrollArea> <QSignalBlocker> <QToolBar> <QToolButton> <QVBoxLayout>)
set(PRECOMPILATE_prove_finestre ${PRECOMPILATE_finestre} <gtest/gtest.h> <QTest>)

file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/precompilate.cpp CONTENT "")

function(precompila bersaglio genere)
  set(primo precompilate_${genere})
  if(NOT TARGET ${primo})
    add_library(${primo} OBJECT ${CMAKE_BINARY_DIR}/precompilate.cpp)
    set_target_properties(${primo} PROPERTIES AUTOMOC OFF AUTORCC OFF)
    target_link_libraries(${primo} PRIVATE ${ARGN})
    target_precompile_headers(${primo} PRIVATE ${PRECOMPILATE_${genere}})
    if(CMAKE_CXX_COMPILER_ID MATCHES "Clang")
      target_compile_options(${primo} PRIVATE "SHELL:-Xclang -fno-pch-timestamp") # else ccache never meets it again
    endif()
  endif()
  target_precompile_headers(${bersaglio} REUSE_FROM ${primo})
  if(LIRMETO_FUZZ AND genere STREQUAL "logica")
    # What is fuzzed reports where it went; optimised a little it goes twice as often.
    target_compile_options(${primo} PRIVATE -O1 -fsanitize=fuzzer-no-link)
    target_compile_options(${bersaglio} PRIVATE -O1 -fsanitize=fuzzer-no-link)
  endif()
endfunction()
