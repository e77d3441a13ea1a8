# Defines what is installed and the archives that cpack makes: the program alone, and on Linux also one
# with Qt. All files go into one folder, the emulator's, so their names must not clash with other files.
function(install_program) # options of each installation
  # Strips released programs, as `cmake --install --strip` does. Debug builds keep their symbols.
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
  # The loader searches this folder first, also for what its libraries need, and application.cpp takes
  # the plugins from it. Its name contains Qt's version, so that a program never uses libraries that an
  # archive with another version left behind.
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
