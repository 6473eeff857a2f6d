# CLI11: the installed package, or in a cross-build the build machine's headers of it, which is all there is to it.

if(CMAKE_CROSSCOMPILING)
    find_path(CLI11_FOLDER CLI/CLI.hpp PATHS /usr/include NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH)
    if(NOT CLI11_FOLDER)
        message(FATAL_ERROR "There is no CLI/CLI.hpp in /usr/include. Install the package libcli11-dev, or run ./test --windows, "
            "which installs what it needs.")
    endif()
    # A link to the one folder: the build machine's other headers stay out of reach.
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/HeaderLibraries)
    file(CREATE_LINK ${CLI11_FOLDER}/CLI ${CMAKE_BINARY_DIR}/HeaderLibraries/CLI SYMBOLIC)
    add_library(CLI11::CLI11 INTERFACE IMPORTED)
    target_include_directories(CLI11::CLI11 INTERFACE ${CMAKE_BINARY_DIR}/HeaderLibraries)
else()
    find_package(CLI11 REQUIRED)
endif()
