# Runs at installation. Copies into FOLDER: the libraries of Qt that PROGRAM needs, the plugins for
# displays, input methods and pictures, the libraries that these need, all licences, and a list of the
# source packages. QMAKE says where the plugins are. Libraries that belong to the machine and its display
# are left out: the C and C++ runtimes, X, Wayland, OpenGL, fonts.
set(OF_THE_MACHINE
  "^ld-linux" "^lib(c|m|dl|rt|pthread|resolv|gcc_s|stdc\\+\\+)\\.so"
  "^lib(X11|X11-xcb|xcb|Xau|Xdmcp|GL|GLX|EGL|OpenGL|GLdispatch|drm|gbm|wayland-.*)\\.so"
  "^lib(fontconfig|freetype|expat|z)\\.so")

execute_process(COMMAND "${QMAKE}" -query QT_INSTALL_PLUGINS
  OUTPUT_VARIABLE PLUGIN_FOLDER OUTPUT_STRIP_TRAILING_WHITESPACE)
set(NEEDED_PLUGINS
  platforms/libqxcb.so platforms/libqwayland-generic.so wayland-shell-integration/libxdg-shell.so
  # Without this one, windows on Wayland get no title bar.
  wayland-graphics-integration-client/libqt-plugin-wayland-egl.so
  imageformats/libqico.so imageformats/libqjpeg.so)
list(TRANSFORM NEEDED_PLUGINS PREPEND "${PLUGIN_FOLDER}/")
foreach(PLUGIN ${NEEDED_PLUGINS})
  if(NOT EXISTS "${PLUGIN}")
    message(FATAL_ERROR "Not found: ${PLUGIN}\n`tools/install.sh package` installs it.")
  endif()
endforeach()
file(GLOB MORE_PLUGINS
  "${PLUGIN_FOLDER}/wayland-decoration-client/*.so" "${PLUGIN_FOLDER}/platforminputcontexts/*.so")
set(MODULES ${NEEDED_PLUGINS} ${MORE_PLUGINS})
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${PROGRAM} MODULES ${MODULES}
  RESOLVED_DEPENDENCIES_VAR NEEDED UNRESOLVED_DEPENDENCIES_VAR MISSING
  PRE_EXCLUDE_REGEXES ${OF_THE_MACHINE})
if(MISSING)
  message(FATAL_ERROR "Not found: ${MISSING}")
endif()

file(REMOVE_RECURSE "${FOLDER}")
foreach(LIBRARY ${NEEDED})
  get_filename_component(NAME "${LIBRARY}" NAME)
  get_filename_component(FILE "${LIBRARY}" REALPATH)
  configure_file("${FILE}" "${FOLDER}/${NAME}" COPYONLY)
endforeach()
foreach(PLUGIN ${MODULES})
  file(RELATIVE_PATH NAME "${PLUGIN_FOLDER}" "${PLUGIN}")
  configure_file("${PLUGIN}" "${FOLDER}/plugins/${NAME}" COPYONLY)
endforeach()

# On Debian, a package's documentation contains its licence, and dpkg knows its source package.
foreach(LIBRARY ${NEEDED} ${MODULES})
  get_filename_component(FILE "${LIBRARY}" REALPATH)
  # A package may name a file of /usr/lib by /lib.
  string(REGEX REPLACE "^/usr" "" NAME "${FILE}")
  execute_process(COMMAND dpkg-query --search "*${NAME}" OUTPUT_VARIABLE PACKAGE ERROR_QUIET)
  string(REGEX REPLACE "[:\n].*" "" PACKAGE "${PACKAGE}")
  set(LICENCE "/usr/share/doc/${PACKAGE}/copyright")
  if(NOT PACKAGE OR NOT EXISTS "${LICENCE}")
    message(FATAL_ERROR "No licence of ${FILE}")
  endif()
  get_filename_component(LICENCE "${LICENCE}" REALPATH)
  configure_file("${LICENCE}" "${FOLDER}/licences/${PACKAGE}.txt" COPYONLY)
  execute_process(COMMAND dpkg-query --show "--showformat=\${source:Package} \${source:Version}\n"
    "${PACKAGE}" OUTPUT_VARIABLE SOURCE COMMAND_ERROR_IS_FATAL ANY)
  list(APPEND SOURCES "${SOURCE}")
endforeach()
list(SORT SOURCES)
list(REMOVE_DUPLICATES SOURCES)
list(JOIN SOURCES "" SOURCES)
file(WRITE "${FOLDER}/licences/sources.txt" "${SOURCES}")
