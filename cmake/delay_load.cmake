# Windows looks for the libraries that a program imports in the program's own folder first, except
# for a list of its most common ones (KnownDLLs). Our folder is the emulator's, where libraries of
# the same names may lie that wrap graphics and sound for the emulator. So what is not on that list
# is loaded at its first use only, when `main` has told the system to look nowhere but in its own
# folder.
function(delay_load target)
  set(folder ${CMAKE_BINARY_DIR}/delay_load)
  file(MAKE_DIRECTORY ${folder})
  foreach(name authz d3d11 d3d9 dwmapi dwrite dxgi mpr netapi32 userenv uxtheme version winmm wtsapi32)
    set(library ${folder}/lib${name}.a)
    if(NOT EXISTS ${library})
      # The compiler's own library for this import knows the functions' names.
      find_library(IMPORT_${name} ${name} REQUIRED)
      execute_process(COMMAND ${CMAKE_NM} ${IMPORT_${name}} OUTPUT_VARIABLE symbols ERROR_QUIET
        COMMAND_ERROR_IS_FATAL ANY)
      string(REGEX MATCHALL "__imp_[A-Za-z0-9_]+" functions "${symbols}")
      list(REMOVE_DUPLICATES functions)
      list(TRANSFORM functions REPLACE "^__imp_(.*)" "\\1\n")
      string(CONCAT functions ${functions})
      file(WRITE ${folder}/${name}.def "LIBRARY ${name}.dll\nEXPORTS\n${functions}")
      execute_process(COMMAND ${CMAKE_DLLTOOL} -d ${folder}/${name}.def --output-delaylib ${library}
        COMMAND_ERROR_IS_FATAL ANY)
    endif()
  endforeach()
  target_link_directories(${target} BEFORE PRIVATE ${folder})
  # The libraries above call the loader that is in this one.
  target_link_options(${target} PRIVATE LINKER:--undefined=__delayLoadHelper2)
  target_link_libraries(${target} PRIVATE delayimp)
endfunction()
