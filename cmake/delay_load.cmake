# Windows looks for the libraries that a program imports in the program's own folder first, except
# for a list of its most common ones (KnownDLLs). Our folder is the emulator's, where libraries of
# the same names may wrap graphics and sound for the emulator. So libraries that are not on that list
# are loaded at their first use. By then `main` has restricted the search to the system's folder.
function(delay_load target)
  set(folder ${CMAKE_BINARY_DIR}/delay_load)
  file(MAKE_DIRECTORY ${folder})
  foreach(name authz d3d11 d3d9 dwmapi dwrite dxgi mpr netapi32 userenv uxtheme version winmm wtsapi32)
    set(library ${folder}/lib${name}.a)
    if(NOT EXISTS ${library})
      # The compiler's own import library lists the functions' names.
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
  # The libraries above call this function of delayimp to load theirs.
  target_link_options(${target} PRIVATE LINKER:--undefined=__delayLoadHelper2)
  target_link_libraries(${target} PRIVATE delayimp)
endfunction()
