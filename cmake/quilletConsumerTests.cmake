# ctest -L consumer: installs this build into a prefix inside the build folder,
# checks what was installed, then builds and runs tests/consumer against it
# four ways: found by find_package or by pkg-config, linked into a program or
# into a plugin. Needs the library built first.
enable_testing()
set(QUILLET_CONSUMER_PREFIX ${PROJECT_BINARY_DIR}/consumer/prefix)

# The consumers' build folders go with the old install: a cached pkg-config
# answer would hide a changed quillet.pc.
add_test(NAME consumer.install
  COMMAND ${CMAKE_COMMAND} -DBUILD_DIR=${PROJECT_BINARY_DIR} -DPREFIX=${QUILLET_CONSUMER_PREFIX}
    -DCONSUMER_DIRS=${PROJECT_BINARY_DIR}/consumer
    -DLIBDIR=${CMAKE_INSTALL_LIBDIR} -DINCLUDEDIR=${CMAKE_INSTALL_INCLUDEDIR}
    -P ${PROJECT_SOURCE_DIR}/cmake/quilletInstallCheck.cmake)
set_tests_properties(consumer.install PROPERTIES LABELS consumer FIXTURES_SETUP quillet_installed)

set(options -DCMAKE_PREFIX_PATH=${QUILLET_CONSUMER_PREFIX} -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER})
if(CMAKE_CXX_COMPILER_LAUNCHER)
  list(APPEND options -DCMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER})
endif()
foreach(find cmake pkg-config)
  foreach(kind executable shared)
    set(dir ${PROJECT_BINARY_DIR}/consumer/${find}-${kind})
    add_test(NAME consumer.${find}.${kind}
      COMMAND ${CMAKE_CTEST_COMMAND} --build-and-test ${PROJECT_SOURCE_DIR}/tests/consumer ${dir}
        --build-generator ${CMAKE_GENERATOR}
        --build-options ${options} -DQUILLET_CONSUMER_FIND=${find} -DQUILLET_CONSUMER_KIND=${kind}
        --test-command ${CMAKE_CTEST_COMMAND} --output-on-failure)
    # A shared libquillet is found at run time through the search path.
    set_tests_properties(consumer.${find}.${kind} PROPERTIES LABELS consumer FIXTURES_REQUIRED quillet_installed
      ENVIRONMENT LD_LIBRARY_PATH=${QUILLET_CONSUMER_PREFIX}/${CMAKE_INSTALL_LIBDIR})
  endforeach()
endforeach()
