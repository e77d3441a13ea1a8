# What is installed, and the archives that cpack makes of it: the program alone, and on Linux also with
# the toolkit. All goes into one folder, the emulator's, where other files of these kinds may be.
function(install_program) # options of each installation
  # As `cmake --install --strip` does; a debugger still wants the names.
  install(CODE "set(CMAKE_INSTALL_DO_STRIP ON)" CONFIGURATIONS Release MinSizeRel ${ARGN})
  install(TARGETS KestrivaneUI RUNTIME DESTINATION . ${ARGN})
  install(FILES LICENSE DESTINATION . RENAME KestrivaneUI-LICENSE.txt ${ARGN})
  if(WIN32)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/KestrivaneUI.txt" DESTINATION . ${ARGN})
    install(FILES "${QT_FOR_WINDOWS}/licences.txt" DESTINATION .
      RENAME KestrivaneUI-LICENSE-Qt.txt ${ARGN})
  else()
    install(FILES assets/KestrivaneUI.txt DESTINATION . ${ARGN})
    install(PROGRAMS assets/KestrivaneUI-menu.sh DESTINATION . ${ARGN})
    install(FILES assets/kestrivane-ui.desktop DESTINATION . ${ARGN})
    install(FILES assets/icon.png DESTINATION . RENAME kestrivane-ui.png ${ARGN})
  endif()
endfunction()

install_program(COMPONENT program)
set(CPACK_COMPONENTS_ALL program)
set(CPACK_ARCHIVE_PROGRAM_FILE_NAME "KestrivaneUI-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}")

if(CMAKE_SYSTEM_NAME STREQUAL Linux)
  # The loader looks here first, for the needs of the libraries in it too, and the program for its
  # plugins (application.cpp). The version keeps a program from libraries that an archive with another
  # toolkit left here: it takes the system's then.
  set(TOOLKIT KestrivaneUI-Qt-${Qt6_VERSION})
  set_target_properties(KestrivaneUI PROPERTIES INSTALL_RPATH "$ORIGIN/${TOOLKIT}")
  target_link_options(KestrivaneUI PRIVATE -Wl,--disable-new-dtags)

  install_program(COMPONENT bundle EXCLUDE_FROM_ALL)
  install(CODE "
    set(PROGRAM \"$<TARGET_FILE:KestrivaneUI>\")
    set(QMAKE \"$<TARGET_FILE:Qt6::qmake>\")
    set(FOLDER \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${TOOLKIT}\")
    include(\"${CMAKE_CURRENT_LIST_DIR}/bundle.cmake\")
  " COMPONENT bundle EXCLUDE_FROM_ALL)
  list(APPEND CPACK_COMPONENTS_ALL bundle)
  set(CPACK_ARCHIVE_BUNDLE_FILE_NAME "${CPACK_ARCHIVE_PROGRAM_FILE_NAME}-with-Qt")
endif()

set(CPACK_GENERATOR TGZ)
if(WIN32)
  configure_file(assets/KestrivaneUI-windows.txt KestrivaneUI.txt @ONLY NEWLINE_STYLE CRLF)
  set(CPACK_GENERATOR ZIP)
  set(CPACK_ARCHIVE_PROGRAM_FILE_NAME KestrivaneUI-${PROJECT_VERSION}-windows)
endif()
set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
include(CPack)
