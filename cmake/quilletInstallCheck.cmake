# cmake -DBUILD_DIR=... -DPREFIX=... -DLIBDIR=... -DINCLUDEDIR=... -P quilletInstallCheck.cmake
# Installs the build into PREFIX, afresh, and checks that only the public
# headers went (no internal/ folder, no test) beside the library and both
# package descriptions.
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX} COMMAND_ERROR_IS_FATAL ANY)

set(problems "")
file(GLOB_RECURSE headers RELATIVE ${PREFIX}/${INCLUDEDIR} ${PREFIX}/${INCLUDEDIR}/*)
foreach(header ${headers})
  if(header MATCHES "(^|/)internal/" OR header MATCHES "_test" OR NOT header MATCHES "^quillet/.*\\.h$")
    string(APPEND problems "  installed but not public: ${INCLUDEDIR}/${header}\n")
  endif()
endforeach()
foreach(needed ${INCLUDEDIR}/quillet/quillet.h ${LIBDIR}/pkgconfig/quillet.pc
    ${LIBDIR}/cmake/quillet/quilletConfig.cmake ${LIBDIR}/cmake/quillet/quilletConfigVersion.cmake)
  if(NOT EXISTS ${PREFIX}/${needed})
    string(APPEND problems "  missing: ${needed}\n")
  endif()
endforeach()
file(GLOB libraries ${PREFIX}/${LIBDIR}/libquillet.*)
if(NOT libraries)
  string(APPEND problems "  missing: ${LIBDIR}/libquillet.a or .so\n")
endif()
if(problems)
  message(FATAL_ERROR "the install into ${PREFIX} is wrong:\n${problems}")
endif()
list(LENGTH headers count)
message(STATUS "installed ${count} public headers into ${PREFIX}")
