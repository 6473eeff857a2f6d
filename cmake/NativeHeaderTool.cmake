# In a cross-build: the target HeaderTool as a program of the build machine, made in a build tree of its own inside this one.

set(native_dir ${CMAKE_BINARY_DIR}/NativeTools)
set(native_tool ${native_dir}/Engine/Binaries/${CMAKE_HOST_SYSTEM_NAME}/HeaderTool)
file(GLOB native_sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp ${CMAKE_CURRENT_SOURCE_DIR}/*.h)

add_custom_command(OUTPUT ${native_dir}.stamp BYPRODUCTS ${native_tool}
    COMMAND ${CMAKE_COMMAND} -G Ninja -S ${CMAKE_SOURCE_DIR}/cmake/native-tools -B ${native_dir}
        -DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}
    COMMAND ${CMAKE_COMMAND} --build ${native_dir} --target HeaderTool -j 2
    COMMAND ${CMAKE_COMMAND} -E touch ${native_tool} ${native_dir}.stamp
    DEPENDS ${native_sources} ${CMAKE_SOURCE_DIR}/cmake/native-tools/CMakeLists.txt
    COMMENT "Building the header tool for the build machine" VERBATIM)
add_custom_target(NativeHeaderTool DEPENDS ${native_dir}.stamp)

add_executable(HeaderTool IMPORTED GLOBAL)
set_target_properties(HeaderTool PROPERTIES IMPORTED_LOCATION ${native_tool})
