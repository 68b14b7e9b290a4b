# Shared compile settings for every target of the project.

add_library(KestoCompileOptions INTERFACE)
target_compile_options(KestoCompileOptions INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
  -Wconversion -Wno-sign-conversion)
if(KESTO_WERROR)
  target_compile_options(KestoCompileOptions INTERFACE -Werror)
endif()
if(KESTO_SANITIZE)
  target_compile_options(KestoCompileOptions INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(KestoCompileOptions INTERFACE -fsanitize=address,undefined)
endif()
if(KESTO_FUZZ)
  # Undefined behaviour aborts, so that the fuzzer keeps the input as a finding.
  target_compile_options(KestoCompileOptions INTERFACE -fsanitize=fuzzer-no-link,address,undefined
    -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  target_link_options(KestoCompileOptions INTERFACE -fsanitize=address,undefined)
endif()

# Only what carries KESTO_API leaves libKestoTool.so; the modules are built the same way because
# they are linked into it.
set(CMAKE_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Every header lives at the path its include names, <kestotool/<module>/Header.h>, under src/:
# the build includes src/ itself and the install copies the public headers to the same paths.
set(KESTO_INCLUDE_ROOT ${PROJECT_SOURCE_DIR}/src)

# Installs the module's public headers; private ones end in _p.h and stay in the source tree.
function(kesto_install_headers module)
  file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
  list(FILTER headers EXCLUDE REGEX "_p\\.h$")
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kestotool/${module} COMPONENT dev)
endfunction()

# kesto_module(Target SOURCES ... DEPENDS ...): the module in the current folder of src/kestotool,
# a static library linked into libKestoTool.so. DEPENDS names the modules below it that it uses;
# the layer order is the order of add_subdirectory in src/kestotool/CMakeLists.txt.
function(kesto_module target)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${KESTO_INCLUDE_ROOT}>)
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE KestoCompileOptions)
  get_filename_component(module ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  set_property(GLOBAL PROPERTY KESTO_FOLDER_${target} ${module})
  set_property(GLOBAL PROPERTY KESTO_DEPENDS_${target} ${ARG_DEPENDS})
  kesto_check_layers(${target})
  kesto_install_headers(${module})
endfunction()

# Fails the configure step when a module includes a header of a module that it does not link,
# directly or through the modules it links: the include root holds every module, so the target
# graph is what keeps the layers.
function(kesto_check_layers target)
  set(allowed "")
  set(pending ${target})
  while(pending)
    list(POP_FRONT pending current)
    get_property(folder GLOBAL PROPERTY KESTO_FOLDER_${current})
    if(folder AND NOT folder IN_LIST allowed)
      list(APPEND allowed ${folder})
      get_property(below GLOBAL PROPERTY KESTO_DEPENDS_${current})
      list(APPEND pending ${below})
    endif()
  endwhile()
  file(GLOB files ${CMAKE_CURRENT_SOURCE_DIR}/*.h ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.inc)
  foreach(file ${files})
    file(STRINGS ${file} includes REGEX "^#include [\"<]kestotool/[a-z0-9]+/")
    foreach(line ${includes})
      string(REGEX MATCH "kestotool/([a-z0-9]+)/" unused "${line}")
      if(NOT CMAKE_MATCH_1 IN_LIST allowed)
        message(FATAL_ERROR "${file} includes a header of module '${CMAKE_MATCH_1}', which ${target} "
                            "does not link: ${line}")
      endif()
    endforeach()
  endforeach()
endfunction()
