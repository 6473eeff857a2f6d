# GoogleTest: the installed library, or in a cross-build the installed source package.

if(CMAKE_CROSSCOMPILING)
    set(GOOGLETEST_SOURCES /usr/src/googletest CACHE PATH "The sources of GoogleTest")
    if(NOT EXISTS ${GOOGLETEST_SOURCES}/CMakeLists.txt)
        message(FATAL_ERROR "There are no sources of GoogleTest in ${GOOGLETEST_SOURCES}. Install the package googletest, "
            "or run ./test --windows, which installs what it needs.")
    endif()
    set(BUILD_GMOCK OFF)
    set(INSTALL_GTEST OFF)
    set(gtest_disable_pthreads ON)
    add_subdirectory(${GOOGLETEST_SOURCES} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    target_compile_options(gtest PRIVATE -w)
    target_compile_options(gtest_main PRIVATE -w)
    add_library(GTest::gtest ALIAS gtest)
    add_library(GTest::gtest_main ALIAS gtest_main)
else()
    find_package(GTest REQUIRED)
endif()
