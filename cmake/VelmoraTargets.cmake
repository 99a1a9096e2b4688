# The flags every target shares, and the one way to declare a storey of the house.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

find_program(VELMORA_CCACHE ccache)
if(VELMORA_CCACHE)
  # Paths are seen from the source tree, so that one clone's objects serve the next.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}
                                  CCACHE_NOHASHDIR=1 ${VELMORA_CCACHE})
endif()

add_library(velmora_flags INTERFACE)
target_compile_options(velmora_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wnon-virtual-dtor
  -Woverloaded-virtual -Werror)
# GCC 12 warns of overlaps inside its own string header (its bug 105651).
target_compile_options(velmora_flags INTERFACE
  $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>)
if(VELMORA_SANITIZE)
  target_compile_options(velmora_flags INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # GCC sees uninitialized memory in the standard library's own headers once the checks are woven in.
  target_compile_options(velmora_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(velmora_flags INTERFACE -fsanitize=address,undefined)
endif()
if(VELMORA_FUZZ)
  target_compile_options(velmora_flags INTERFACE -fsanitize=fuzzer-no-link)
endif()

# velmora_storey(<name> FOLDERS <folder>... DEPENDS <target>...)
# One static library from all sources of the folders. Includes are written from src/, as
# "core/text.h", and the linker refuses what is not among DEPENDS.
function(velmora_storey name)
  cmake_parse_arguments(ARG "" "" "FOLDERS;DEPENDS" ${ARGN})
  set(sources "")
  foreach(folder ${ARG_FOLDERS})
    file(GLOB found CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp
                                      ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
    list(APPEND sources ${found})
  endforeach()
  add_library(${name} STATIC ${sources})
  target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
  target_link_libraries(${name} PUBLIC ${ARG_DEPENDS} PRIVATE velmora_flags)
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()
