# The headers of Qt, of the standard library and of GoogleTest take most of the time of a build from nothing. With the option
# TAMO_PRECOMPILE each is read once for all folders, and once for all tests. It is off for daily work: there ccache is quicker.
#
#   tamo_precompile(TARGET PURPOSE)     PURPOSE: folders or tests
set(tamo_precompiled_folders <QByteArray> <QDate> <QDir> <QFile> <QFileInfo> <QHash> <QSet> <QString> <QStringList> <QTextStream>
  <algorithm> <array> <cmath> <deque> <functional> <map> <memory> <mutex> <optional> <thread> <utility> <vector>)
set(tamo_precompiled_tests <gtest/gtest.h> <QTemporaryDir> ${tamo_precompiled_folders})

function(tamo_precompile target purpose)
  get_target_property(kind ${target} TYPE)
  if(NOT TAMO_PRECOMPILE OR kind STREQUAL INTERFACE_LIBRARY)
    return()
  endif()
  if(NOT TARGET tamo_precompiled_${purpose})
    file(WRITE ${CMAKE_BINARY_DIR}/precompiled_${purpose}.cpp "")
    add_library(tamo_precompiled_${purpose} OBJECT ${CMAKE_BINARY_DIR}/precompiled_${purpose}.cpp)
    target_link_libraries(tamo_precompiled_${purpose} PRIVATE Qt6::Core)
    if(purpose STREQUAL tests)
      target_link_libraries(tamo_precompiled_${purpose} PRIVATE GTest::gtest)
    endif()
    target_precompile_headers(tamo_precompiled_${purpose} PRIVATE ${tamo_precompiled_${purpose}})
  endif()
  target_precompile_headers(${target} REUSE_FROM tamo_precompiled_${purpose})
endfunction()
