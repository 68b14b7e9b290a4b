# kestodraw as the install leaves it: the program, its menu entry and AppStream description
# (checked by the desktop's own validators), its icon at every size, a file type that the
# desktop's MIME database recognises by name and by content, and a program that finds its
# sample drawing from where it was installed.
# Run with -DPREFIX=<install prefix> -DBINDIR=... -DDATADIR=... -DLIBDIR=... -DWORK_DIR=<scratch>.
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed (${status}):\n${out}${err}")
  endif()
  set(out "${out}" PARENT_SCOPE)
endfunction()

set(id org.kestotool.kestodraw)
set(share ${PREFIX}/${DATADIR})
foreach(file ${BINDIR}/kestodraw ${DATADIR}/applications/${id}.desktop ${DATADIR}/mime/packages/${id}.xml
             ${DATADIR}/metainfo/${id}.metainfo.xml ${DATADIR}/icons/hicolor/scalable/apps/${id}.svg
             ${DATADIR}/kestodraw/sample.kdraw)
  if(NOT EXISTS ${PREFIX}/${file})
    message(FATAL_ERROR "the install has no ${file}")
  endif()
endforeach()
foreach(size 16 24 32 48 64 128 256)
  if(NOT EXISTS ${share}/icons/hicolor/${size}x${size}/apps/${id}.png)
    message(FATAL_ERROR "the install has no ${size}x${size} icon")
  endif()
endforeach()

run(desktop-file-validate ${share}/applications/${id}.desktop)
if(out MATCHES "error|warning")
  message(FATAL_ERROR "desktop-file-validate:\n${out}")
endif()
run(appstreamcli validate --no-net --pedantic ${share}/metainfo/${id}.metainfo.xml)

# The file type: a drawing by its name, and a drawing without its extension by its content.
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR}/data/mime/packages)
file(COPY ${share}/mime/packages/${id}.xml DESTINATION ${WORK_DIR}/data/mime/packages)
run(update-mime-database ${WORK_DIR}/data/mime)
file(COPY ${share}/kestodraw/sample.kdraw DESTINATION ${WORK_DIR})
file(COPY_FILE ${WORK_DIR}/sample.kdraw ${WORK_DIR}/no-extension)
foreach(drawing sample.kdraw no-extension)
  run(${CMAKE_COMMAND} -E env XDG_DATA_HOME=${WORK_DIR}/data XDG_DATA_DIRS=/usr/share
      xdg-mime query filetype ${WORK_DIR}/${drawing})
  if(NOT out STREQUAL "application/x-kestodraw\n")
    message(FATAL_ERROR "xdg-mime takes ${drawing} for ${out}")
  endif()
endforeach()

# The installed program opens its sample (from its data folder) and plays an empty script.
file(WRITE ${WORK_DIR}/empty.txt "")
run(${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen LD_LIBRARY_PATH=${PREFIX}/${LIBDIR}
    XDG_DATA_HOME=${WORK_DIR}/home ${PREFIX}/${BINDIR}/kestodraw --script ${WORK_DIR}/empty.txt
    --out ${WORK_DIR}/shots)
