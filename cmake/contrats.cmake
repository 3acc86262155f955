# What every target of this project shares: strict warnings, the include root and, on demand, the sanitizers.
add_library(contrats_options INTERFACE)
target_compile_options(contrats_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Werror
  # g++ 12 sees overlapping and overlong copies inside std::string that are not there (GCC bug 105651).
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict -Wno-array-bounds -Wno-stringop-overflow
    -Wno-stringop-overread>)
target_include_directories(contrats_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(CONTRATS_SANITIZE)
  target_compile_options(contrats_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(contrats_options INTERFACE -fsanitize=address,undefined)
endif()

# contrats_prefixe(owner HEADERS... USERS targets...): headers that the owner precompiles once for all users, which are
# compiled as it is. Nobody may lean on it: each file includes what it uses.
function(contrats_prefixe owner)
  cmake_parse_arguments(ARG "" "" "HEADERS;USERS" ${ARGN})
  if(ARG_HEADERS)
    target_precompile_headers(${owner} PRIVATE ${ARG_HEADERS})
  endif()
  foreach(user ${ARG_USERS})
    target_precompile_headers(${user} REUSE_FROM ${owner})
  endforeach()
endfunction()

# The sanitized preset compiles several sources as one: most of its time goes to headers. Sources that hold names of
# their own which others of their target hold too are compiled one by one: contrats_a_part(sources of this folder).
function(contrats_a_part)
  set_source_files_properties(${ARGN} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
endfunction()

# contrats_folder(name LINK below...): one library for one folder of src/, which links what stands below it. There is
# one include root: scripts/inclusions holds who may include whom.
function(contrats_folder name)
  cmake_parse_arguments(ARG "" "" "LINK;PRIVATE" ${ARGN})
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
  add_library(contrats_${name} STATIC ${sources})
  target_link_libraries(contrats_${name} PUBLIC contrats_options)
  foreach(below ${ARG_LINK})
    target_link_libraries(contrats_${name} PUBLIC contrats_${below})
  endforeach()
  target_link_libraries(contrats_${name} PRIVATE ${ARG_PRIVATE})
  if(name STREQUAL data)
    contrats_prefixe(contrats_data
      HEADERS <algorithm> <array> <functional> <map> <memory> <optional> <string> <string_view> <utility> <vector>)
  else()
    contrats_prefixe(contrats_data USERS contrats_${name})
  endif()
endfunction()

# contrats_programme(name): installs a program with its French manual page and its completion, from paquet/ beside it.
# These are what a package holds; libraries and headers are for those who build a host of their own.
include(GNUInstallDirs)
function(contrats_programme name)
  install(TARGETS ${name} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT programmes)
  set(paquet ${CMAKE_CURRENT_SOURCE_DIR}/paquet)
  if(NOT EXISTS ${paquet})
    set(paquet ${CMAKE_CURRENT_SOURCE_DIR})
  endif()
  install(FILES ${paquet}/${name}.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT programmes)
  install(FILES ${paquet}/${name}.bash RENAME ${name}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT programmes)
endfunction()
