# The PDF engine: the static MuPDF library and what it stands on. Gives the target MuPDF::MuPDF.
#
# The distribution's package of the library names none of the libraries it needs, and installs their
# run-time files only; so those are taken, too, by their file names.
find_path(MuPDF_INCLUDE_DIR mupdf/fitz.h)
find_library(MuPDF_LIBRARY NAMES libmupdf.a)
find_library(MuPDF_THIRD_LIBRARY NAMES libmupdf-third.a)

set(MuPDF_needs)
set(MuPDF_missing)
foreach(need "jbig2dec;libjbig2dec.so.0" "openjp2;libopenjp2.so.7" "jpeg;libjpeg.so.62" "freetype;libfreetype.so.6"
             "harfbuzz;libharfbuzz.so.0" "gumbo;libgumbo.so.1" "mujs;libmujs.so.2;libmujs.so.1" "z;libz.so.1")
  list(GET need 0 name)
  find_library(MuPDF_${name}_LIBRARY NAMES ${need})
  if(MuPDF_${name}_LIBRARY)
    list(APPEND MuPDF_needs ${MuPDF_${name}_LIBRARY})
  else()
    list(APPEND MuPDF_missing ${name})
  endif()
endforeach()
if(MuPDF_missing)
  message(STATUS "MuPDF needs, not found: ${MuPDF_missing}")
  set(MuPDF_needs "MuPDF_needs-NOTFOUND")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(MuPDF REQUIRED_VARS MuPDF_LIBRARY MuPDF_THIRD_LIBRARY MuPDF_INCLUDE_DIR MuPDF_needs)
if(MuPDF_FOUND AND NOT TARGET MuPDF::MuPDF)
  find_package(Threads REQUIRED)
  add_library(MuPDF::MuPDF INTERFACE IMPORTED)
  # See src/engine/mupdfjpx.cpp.
  target_link_options(MuPDF::MuPDF INTERFACE LINKER:--wrap=fz_load_jpx LINKER:--undefined=__wrap_fz_load_jpx)
  target_include_directories(MuPDF::MuPDF SYSTEM INTERFACE ${MuPDF_INCLUDE_DIR})
  target_link_libraries(MuPDF::MuPDF INTERFACE ${MuPDF_LIBRARY} ${MuPDF_THIRD_LIBRARY} ${MuPDF_needs}
                                               Threads::Threads m)
endif()
