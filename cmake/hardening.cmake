# Hardens released programs against faults of their own, since they read texts and pictures from
# anywhere: guarded stacks and calls, checked containers, and on ELF systems tables that are read-only
# once the program has started. tests/hardening.sh checks the built files for it.
include(CheckCXXCompilerFlag)

set(HARDENING "-fstack-protector-strong -D_GLIBCXX_ASSERTIONS")
check_cxx_compiler_flag(-fcf-protection HAS_CF_PROTECTION) # on x86 only
if(HAS_CF_PROTECTION)
  string(APPEND HARDENING " -fcf-protection")
endif()
if(NOT WIN32)
  # Older compilers have no third level.
  set(FORTIFY 2)
  if((CMAKE_CXX_COMPILER_ID STREQUAL GNU AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 12) OR
     (CMAKE_CXX_COMPILER_ID STREQUAL Clang AND CMAKE_CXX_COMPILER_VERSION VERSION_GREATER_EQUAL 15))
    set(FORTIFY 3)
  endif()
  string(APPEND HARDENING " -fPIE -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=${FORTIFY}")
  string(APPEND CMAKE_EXE_LINKER_FLAGS_RELEASE " -pie -Wl,-z,relro,-z,now")
endif()
string(APPEND CMAKE_CXX_FLAGS_RELEASE " ${HARDENING}")
