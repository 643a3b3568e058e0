# The headers of Qt, of the standard library and of GoogleTest take more than half the time of a build. With TAMO_PRECOMPILE they
# are read once for all targets of a kind; such a compiled text is 150 MB, so there are only as many as there are kinds. The preset
# core-only leaves it off: a file that forgets an include then does not compile.
#
#   tamo_precompile(TARGET [TESTS] [WINDOWS])
function(tamo_precompile target)
  get_target_property(type ${target} TYPE)
  if(TAMO_PRECOMPILE AND NOT type STREQUAL INTERFACE_LIBRARY)
    cmake_parse_arguments(ARG "TESTS;WINDOWS" "" "" ${ARGN})
    set(kind precompiled)
    set(headers <QDate> <QDir> <QFile> <QHash> <QString> <QStringList> <algorithm> <array> <functional> <map> <memory> <optional>
      <string> <vector>)
    set(links Qt6::Core)
    if(ARG_TESTS)
      string(APPEND kind _tests)
      list(APPEND headers <gtest/gtest.h>)
      list(APPEND links GTest::gtest)
    endif()
    if(ARG_WINDOWS)
      string(APPEND kind _windows)
      list(APPEND headers <QApplication> <QBoxLayout> <QLabel> <QLineEdit> <QListView> <QMenu> <QPainter> <QPushButton> <QWidget>)
      list(APPEND links Qt6::Widgets)
    endif()
    if(NOT TARGET ${kind})
      tamo_precompiled_kind(${kind} "${headers}" "${links}")
    endif()
    target_precompile_headers(${target} REUSE_FROM ${kind})
  endif()
endfunction()

function(tamo_precompiled_kind kind headers links)
  file(GENERATE OUTPUT ${CMAKE_BINARY_DIR}/${kind}.cpp CONTENT "")
  add_library(${kind} OBJECT ${CMAKE_BINARY_DIR}/${kind}.cpp)
  target_link_libraries(${kind} PRIVATE ${links})
  target_precompile_headers(${kind} PRIVATE ${headers})
  # GCC writes other bytes each time; so that ccache finds again what was compiled with them, it goes by what they are made of.
  get_target_property(folder ${kind} BINARY_DIR)
  file(WRITE ${folder}/CMakeFiles/${kind}.dir/cmake_pch.hxx.gch.sum
    "${kind} ${headers} ${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION} ${Qt6_VERSION} ${CMAKE_CXX_FLAGS} ${CMAKE_BUILD_TYPE}")
endfunction()

# What ccache must overlook so that it may keep what was compiled with such headers.
if(TAMO_PRECOMPILE AND CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_PCH_EXTSUM=true ${CCACHE})
endif()
if(TAMO_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()
