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

# kesto_library(Target SOURCES ... DEPENDS ...): one library per folder under libs/,
# its headers included as "folder/Header.h" from the libs root.
function(kesto_library target)
  cmake_parse_arguments(ARG "" "" "SOURCES;DEPENDS" ${ARGN})
  add_library(${target} STATIC ${ARG_SOURCES})
  target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/libs)
  target_link_libraries(${target} PUBLIC ${ARG_DEPENDS} PRIVATE KestoCompileOptions)
endfunction()
