# Cross-builds for Windows x86-64 with Debian's MinGW-w64, the variant with POSIX threads, for the sake of std::thread and std::mutex.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(MINGW_TRIPLET x86_64-w64-mingw32)

find_program(MINGW_CXX ${MINGW_TRIPLET}-g++-posix)
find_program(MINGW_CC ${MINGW_TRIPLET}-gcc-posix)
find_program(MINGW_RC ${MINGW_TRIPLET}-windres)
if(NOT MINGW_CXX OR NOT MINGW_CC OR NOT MINGW_RC)
    message(FATAL_ERROR "The compiler for Windows, ${MINGW_TRIPLET}-g++-posix, is not on this machine. "
        "Install the package g++-mingw-w64-x86-64-posix, or run ./test --windows, which installs what it needs.")
endif()
set(CMAKE_CXX_COMPILER ${MINGW_CXX})
set(CMAKE_C_COMPILER ${MINGW_CC})
set(CMAKE_RC_COMPILER ${MINGW_RC})

# This compiler takes the empty half of an optional for an uninitialised variable; the one of the everyday build does not.
set(CMAKE_CXX_FLAGS_INIT "-Wno-maybe-uninitialized")

# The compiler's run-time libraries go into every program and library, so that none has to be installed with them. All of them allocate
# from the one C library of the system.
set(static_runtime "-static-libgcc -static-libstdc++ -Wl,-Bstatic,--whole-archive -lwinpthread -Wl,--no-whole-archive,-Bdynamic")
# Only what is marked leaves a library, and only what is marked is taken from one: as with the engine's compiler on Windows.
set(strict_linking "-Wl,--exclude-all-symbols -Wl,--disable-auto-import")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${static_runtime} ${strict_linking}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${static_runtime} ${strict_linking}")

# Programs of the build machine may be run; its libraries may not be linked.
set(CMAKE_FIND_ROOT_PATH /usr/${MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(ENV{PKG_CONFIG_LIBDIR} /usr/${MINGW_TRIPLET}/lib/pkgconfig)

# Wine shows the build machine's root folder as drive Z.
set(TARGET_PATH_PREFIX "Z:")
