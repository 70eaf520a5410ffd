# How every target of the project is compiled, and the functions that make them.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)

find_program(CCACHE ccache)
if(CCACHE)
  # Precompiled headers are cached only when their time stamps and macros may differ; what one
  # clone has compiled serves the next.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros
      CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${CCACHE})
endif()

# The usual linker takes seconds for each program of a debug build.
find_program(MOLD mold)
if(MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  add_link_options(-fuse-ld=mold)
endif()

add_library(ambrelune_options INTERFACE)
target_compile_definitions(
  ambrelune_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                              QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
                              QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(
  ambrelune_options
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
            -Wcast-align -Wnull-dereference -Wdouble-promotion
            $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
if(AMBRELUNE_WERROR)
  target_compile_options(ambrelune_options INTERFACE -Werror)
endif()
if(AMBRELUNE_SANITIZE)
  target_compile_options(ambrelune_options
                         INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
                                   -fno-omit-frame-pointer)
  target_link_options(ambrelune_options INTERFACE -fsanitize=address,undefined)
endif()

# ambrelune_library(NAME LINK...): the static library of one folder under src/, of all the sources in
# it but kwmain.cpp.
function(ambrelune_library name)
  cmake_parse_arguments(ARG "" "" "LINK" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp *.h)
  list(FILTER sources EXCLUDE REGEX "/kwmain[.]cpp$")
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_LINK} PRIVATE ambrelune_options)
endfunction()

# ambrelune_ship(LIBRARY FOLDER FILES...): copies files into share/ambrelune/FOLDER beside the
# program, where dataDirectory() finds them, before the library is built.
function(ambrelune_ship library folder)
  foreach(source IN LISTS ARGN)
    cmake_path(GET source FILENAME name)
    set(copy ${CMAKE_BINARY_DIR}/share/ambrelune/${folder}/${name})
    add_custom_command(
      OUTPUT ${copy}
      COMMAND ${CMAKE_COMMAND} -E copy ${source} ${copy}
      DEPENDS ${source})
    list(APPEND copies ${copy})
  endforeach()
  add_custom_target(ambrelune_ship_${folder} DEPENDS ${copies})
  add_dependencies(${library} ambrelune_ship_${folder})
endfunction()

# ambrelune_tests(FOLDER [GUI]): one Qt Test program of all the sources in a folder. Every tst_*.cpp
# in it is a test of that name, which ctest runs by itself and without a display; other sources are
# what its tests share.
function(ambrelune_tests folder)
  cmake_parse_arguments(ARG "GUI" "" "" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${folder}/*.h ${folder}/*.cpp)
  string(REPLACE "/" "_" program ${folder}_tests)
  if(ARG_GUI)
    add_executable(${program} ${sources} support/gui/guimain.cpp)
    set(support ambrelune_gui_test_support)
  else()
    add_executable(${program} ${sources} support/coremain.cpp)
    set(support ambrelune_test_support)
  endif()
  target_link_libraries(${program} PRIVATE ${support} ambrelune_options)
  target_precompile_headers(${program} REUSE_FROM ${support})
  list(FILTER sources INCLUDE REGEX "/tst_[^/]*[.]cpp$")
  foreach(source IN LISTS sources)
    cmake_path(GET source STEM name)
    add_test(NAME ${name} COMMAND ${program} ${name})
    set_tests_properties(${name} PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen" TIMEOUT 300)
  endforeach()
endfunction()
