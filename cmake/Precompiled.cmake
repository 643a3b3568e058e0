# The headers of Qt, of the standard library and of GoogleTest take half the time of a build. With TAMO_PRECOMPILE=ON each
# target reads them once, with TESTS each test program. It is off by default: a file that forgets an include then does not
# compile; ./check builds with TESTS, so that the program itself is looked at for that.
#
#   tamo_precompile(TARGET [more headers...])
function(tamo_precompile target)
  get_target_property(kind ${target} TYPE)
  if(TAMO_PRECOMPILE AND NOT kind STREQUAL INTERFACE_LIBRARY)
    target_precompile_headers(${target} PRIVATE <QDate> <QDir> <QFile> <QHash> <QString> <QStringList> <algorithm> <array>
      <functional> <map> <memory> <optional> <string> <vector> ${ARGN})
  endif()
endfunction()

# What ccache must overlook so that it may keep what was compiled with such headers.
if(TAMO_PRECOMPILE AND CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
endif()
if(TAMO_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()
