# The headers of Qt, of the standard library and of GoogleTest take more than half the time of a build. With TAMO_PRECOMPILE each
# target reads them once. The preset core-only leaves it off: a file that forgets an include then does not compile.
#
#   tamo_precompile(TARGET [more headers...])
function(tamo_precompile target)
  get_target_property(kind ${target} TYPE)
  if(TAMO_PRECOMPILE AND NOT kind STREQUAL INTERFACE_LIBRARY)
    set(headers <QDate> <QDir> <QFile> <QHash> <QString> <QStringList> <algorithm> <array> <functional> <map> <memory> <optional>
      <string> <vector> ${ARGN})
    target_precompile_headers(${target} PRIVATE ${headers})
    # GCC writes other bytes each time; so that ccache finds again what was compiled with them, it goes by what they are made of.
    get_target_property(folder ${target} BINARY_DIR)
    file(WRITE ${folder}/CMakeFiles/${target}.dir/cmake_pch.hxx.gch.sum
      "${target} ${headers} ${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION} ${Qt6_VERSION} ${CMAKE_CXX_FLAGS} ${CMAKE_BUILD_TYPE}")
  endif()
endfunction()

# What ccache must overlook so that it may keep what was compiled with such headers.
if(TAMO_PRECOMPILE AND CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros CCACHE_PCH_EXTSUM=true ${CCACHE})
endif()
if(TAMO_PRECOMPILE AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
  add_compile_options("SHELL:-Xclang -fno-pch-timestamp")
endif()
