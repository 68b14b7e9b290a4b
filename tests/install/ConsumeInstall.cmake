# Installs the build into a fresh prefix and builds the example host against it out of tree, as
# a host engineer would: once with find_package(KestoTool), once with pkg-config and the
# compiler alone; each program then runs from the install.
#   cmake -DBUILD_DIR=... -DEXAMPLE_DIR=... -DQT_CANVAS_DIR=... -DWORK_DIR=... -DCXX=... -DCXX_FLAGS=... [-DWITH_QT=ON] -P ConsumeInstall.cmake
cmake_minimum_required(VERSION 3.25)

function(run)
  execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT result EQUAL 0)
    string(JOIN " " line ${ARGV})
    message(FATAL_ERROR "failed (${result}): ${line}\n${out}\n${err}")
  endif()
  message(STATUS "${out}")
endfunction()

set(prefix ${WORK_DIR}/prefix)
file(REMOVE_RECURSE ${WORK_DIR})
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

# Nothing of the source or build tree may be needed any more.
run(${CMAKE_COMMAND} -S ${EXAMPLE_DIR} -B ${WORK_DIR}/cmake-build -G Ninja -DCMAKE_BUILD_TYPE=Debug
    -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" -DCMAKE_PREFIX_PATH=${prefix})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/cmake-build)
run(${WORK_DIR}/cmake-build/InstalledHost)
if(WITH_QT)
  set(ENV{QT_QPA_PLATFORM} offscreen)
  run(${WORK_DIR}/cmake-build/InstalledQtHost)
  # The first Qt host of the guide, with its test of a hand on its canvas.
  run(${CMAKE_COMMAND} -S ${QT_CANVAS_DIR} -B ${WORK_DIR}/qt-canvas-build -G Ninja -DCMAKE_BUILD_TYPE=Debug
      -DCMAKE_CXX_COMPILER=${CXX} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}" -DCMAKE_PREFIX_PATH=${prefix})
  run(${CMAKE_COMMAND} --build ${WORK_DIR}/qt-canvas-build)
  run(${WORK_DIR}/qt-canvas-build/QtCanvasTest)
endif()

file(GLOB_RECURSE pc_file ${prefix}/kestotool.pc)
get_filename_component(pc_dir "${pc_file}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_dir})
execute_process(COMMAND pkg-config --cflags --libs kestotool OUTPUT_VARIABLE flags
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND pkg-config --variable=libdir kestotool OUTPUT_VARIABLE libdir
                OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
separate_arguments(extra UNIX_COMMAND "${CXX_FLAGS}")
run(${CXX} -std=c++20 ${extra} ${EXAMPLE_DIR}/main.cpp ${flags} -Wl,-rpath,${libdir} -o ${WORK_DIR}/pkg-config-host)
run(${WORK_DIR}/pkg-config-host)
