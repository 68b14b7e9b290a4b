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

# Only what carries KESTO_API leaves libKestoTool.so; the foundation libraries are built the same
# way because they are linked into it.
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# Every header is included as <kestotool/folder/Header.h>, in the build as after installation.
# The build tree gets an include root of links that maps each folder there from its place in
# the source tree; kesto_public_headers records the same map for the install.
set(KESTO_INCLUDE_ROOT ${PROJECT_BINARY_DIR}/include)
function(kesto_public_headers folder source_dir)
  file(MAKE_DIRECTORY ${KESTO_INCLUDE_ROOT}/kestotool)
  file(CREATE_LINK ${source_dir} ${KESTO_INCLUDE_ROOT}/kestotool/${folder} SYMBOLIC)
  file(GLOB headers CONFIGURE_DEPENDS ${source_dir}/*.h)
  install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kestotool/${folder} COMPONENT dev)
endfunction()

# kesto_library(Target SOURCES ... DEPENDS ...): one static library per folder under libs/,
# linked into libKestoTool.so.
function(kesto_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${KESTO_INCLUDE_ROOT}>)
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE KestoCompileOptions)
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  kesto_public_headers(${folder} ${CMAKE_CURRENT_SOURCE_DIR})
endfunction()
