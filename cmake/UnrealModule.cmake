# Builds engine-shaped modules the way the engine's build tool does: one <MODULE>_API macro a module, generated
# reflection code from the header tool, one shared library a module in an editor build.

# Definitions that the engine's build tool passes to every source file of a Development editor.
add_library(UnrealDefinitions INTERFACE)
target_compile_definitions(UnrealDefinitions INTERFACE
    UNICODE=1 _UNICODE=1
    WITH_EDITOR=1 WITH_EDITORONLY_DATA=1 WITH_ENGINE=1 WITH_UNREAL_DEVELOPER_TOOLS=1 WITH_HOT_RELOAD=0
    WITH_DEV_AUTOMATION_TESTS=1
    UE_BUILD_DEBUG=0 UE_BUILD_DEVELOPMENT=1 UE_BUILD_TEST=0 UE_BUILD_SHIPPING=0
    UE_EDITOR=1)
if(WIN32)
    target_compile_definitions(UnrealDefinitions INTERFACE PLATFORM_WINDOWS=1)
else()
    target_compile_definitions(UnrealDefinitions INTERFACE PLATFORM_LINUX=1)
endif()

# The engine's modules that the stand-in has, in dependency order. All of them make one shared library.
set(UE_ENGINE_MODULES Core CoreUObject Projects InputCore RHI SlateCore Slate AssetRegistry Engine ToolMenus AssetTools
    PropertyEditor UnrealEd LevelEditor Launch)

# ue_reflected_headers(OUT DIR): the headers below DIR that take part in reflection.
function(ue_reflected_headers out dir)
    set(found)
    file(GLOB_RECURSE headers CONFIGURE_DEPENDS ${dir}/*.h)
    foreach(header IN LISTS headers)
        file(STRINGS ${header} lines REGEX "^#include \"[A-Za-z0-9_]+\\.generated\\.h\"" LIMIT_COUNT 1)
        if(lines)
            list(APPEND found ${header})
        endif()
    endforeach()
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# ue_declare_module(NAME TYPE DIR): announces a module to the header tool and remembers what will be generated for it.
function(ue_declare_module name type dir)
    ue_reflected_headers(headers ${dir})
    set(sources)
    set(outputs)
    set(lines "Module ${name} ${type} ${dir} ${UE_GENERATED_DIR}/${name}\n")
    foreach(header IN LISTS headers)
        get_filename_component(leaf ${header} NAME_WE)
        list(APPEND sources ${UE_GENERATED_DIR}/${name}/${leaf}.gen.cpp)
        list(APPEND outputs ${UE_GENERATED_DIR}/${name}/${leaf}.gen.cpp ${UE_GENERATED_DIR}/${name}/${leaf}.generated.h)
        string(APPEND lines "Header ${header}\n")
        set_property(DIRECTORY ${CMAKE_SOURCE_DIR} APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${header})
    endforeach()
    if(headers)
        list(APPEND sources ${UE_GENERATED_DIR}/${name}/${name}.init.gen.cpp)
        list(APPEND outputs ${UE_GENERATED_DIR}/${name}/${name}.init.gen.cpp)
        set_property(GLOBAL APPEND_STRING PROPERTY UE_MANIFEST "${lines}")
        set_property(GLOBAL APPEND PROPERTY UE_REFLECTED_HEADERS ${headers})
        set_property(GLOBAL APPEND PROPERTY UE_GENERATED_OUTPUTS ${outputs})
    endif()
    set_property(GLOBAL PROPERTY UE_GENERATED_SOURCES_${name} ${sources})
endfunction()

# ue_generate_reflection(): one run of the header tool over all declared modules; files that stay the same are not touched.
function(ue_generate_reflection)
    get_property(manifest GLOBAL PROPERTY UE_MANIFEST)
    get_property(headers GLOBAL PROPERTY UE_REFLECTED_HEADERS)
    get_property(outputs GLOBAL PROPERTY UE_GENERATED_OUTPUTS)
    set(manifest_file ${UE_GENERATED_DIR}/Modules.uhtmanifest)
    file(CONFIGURE OUTPUT ${manifest_file} CONTENT "${manifest}" @ONLY)
    add_custom_command(OUTPUT ${outputs}
        COMMAND HeaderTool ${manifest_file}
        DEPENDS HeaderTool ${manifest_file} ${headers}
        COMMENT "Generating reflection code" VERBATIM)
    add_custom_target(GeneratedReflection DEPENDS ${outputs})
endfunction()

# ue_api_macro(OUT MODULE): the name of the module's export macro.
function(ue_api_macro out module)
    string(TOUPPER ${module} upper)
    set(${out} ${upper}_API PARENT_SCOPE)
endfunction()

# ue_sources(OUT DIR): the module's own sources; platform folders count on their platform only.
function(ue_sources out dir)
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${dir}/*.cpp)
    if(WIN32)
        list(FILTER sources EXCLUDE REGEX "/Linux/")
    else()
        list(FILTER sources EXCLUDE REGEX "/Windows/")
    endif()
    set(${out} ${sources} PARENT_SCOPE)
endfunction()

option(TINTMILL_JOINED_SOURCES "Compile a module's files together; off, each alone" ON)

# ue_join_sources(TARGET [BY_FOLDER]): compiles the target's files together, those of one folder or a dozen at a time: several times
# as fast as each alone, as most of the time goes into the headers they share. Files with options of their own stay alone.
function(ue_join_sources target)
    if(NOT TINTMILL_JOINED_SOURCES)
        return()
    endif()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 12)
    # Seen from the file that joins them, an unnamed namespace of a source is one of a header.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage> $<$<BOOL:${WIN32}>:-Wa,-mbig-obj>)
    # The system's headers make macros of names that other files use, GetEnvironmentVariable for one.
    get_target_property(platform_sources ${target} SOURCES)
    list(FILTER platform_sources INCLUDE REGEX "/(Linux|Windows)/")
    if(platform_sources)
        set_source_files_properties(${platform_sources} PROPERTIES SKIP_UNITY_BUILD_INCLUSION ON)
    endif()
    if("BY_FOLDER" IN_LIST ARGN)
        set_target_properties(${target} PROPERTIES UNITY_BUILD_MODE GROUP)
        get_target_property(sources ${target} SOURCES)
        foreach(source IN LISTS sources)
            get_filename_component(folder ${source} DIRECTORY)
            string(MAKE_C_IDENTIFIER "${folder}" group)
            set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
        endforeach()
    endif()
endfunction()

# ue_engine_library(): one object library an engine module, one shared library of them all: StandInEngine.
function(ue_engine_library)
    add_library(EngineHeaders INTERFACE)
    target_link_libraries(EngineHeaders INTERFACE UnrealDefinitions)
    foreach(module IN LISTS UE_ENGINE_MODULES)
        target_include_directories(EngineHeaders INTERFACE ${CMAKE_SOURCE_DIR}/StandIn/Engine/${module}/Public
            ${UE_GENERATED_DIR}/${module})
    endforeach()
    # Generated code names headers from the folder above the module's.
    target_include_directories(EngineHeaders INTERFACE ${CMAKE_SOURCE_DIR}/StandIn/Engine)

    add_library(StandInEngine SHARED)
    add_library(StandInEngineImport INTERFACE)
    target_link_libraries(StandInEngineImport INTERFACE StandInEngine EngineHeaders)
    foreach(module IN LISTS UE_ENGINE_MODULES)
        ue_sources(sources ${CMAKE_SOURCE_DIR}/StandIn/Engine/${module}/Private)
        get_property(generated GLOBAL PROPERTY UE_GENERATED_SOURCES_${module})
        list(APPEND sources ${generated})
        if(NOT sources)
            continue()
        endif()
        add_library(Engine.${module} OBJECT ${sources})
        ue_join_sources(Engine.${module})
        target_link_libraries(Engine.${module} PRIVATE EngineHeaders)
        target_include_directories(Engine.${module} PRIVATE ${CMAKE_SOURCE_DIR}/StandIn/Engine/${module}/Private)
        target_compile_definitions(Engine.${module} PRIVATE IS_MONOLITHIC=1)
        foreach(other IN LISTS UE_ENGINE_MODULES)
            ue_api_macro(api ${other})
            target_compile_definitions(Engine.${module} PRIVATE ${api}=DLLEXPORT)
        endforeach()
        add_dependencies(Engine.${module} GeneratedReflection)
        target_link_libraries(StandInEngine PRIVATE Engine.${module})
    endforeach()
    foreach(module IN LISTS UE_ENGINE_MODULES)
        ue_api_macro(api ${module})
        target_compile_definitions(StandInEngineImport INTERFACE ${api}=DLLIMPORT)
    endforeach()
    find_package(Threads REQUIRED)
    target_link_libraries(StandInEngine PRIVATE Threads::Threads ${CMAKE_DL_LIBS})
    set_target_properties(StandInEngine PROPERTIES OUTPUT_NAME UE4Editor-Engine
        LIBRARY_OUTPUT_DIRECTORY ${UE_BINARIES_DIR})
endfunction()

# ue_module(NAME DIR PLUGIN_DIR dir [PRODUCT] [EXCLUDE regex] [DEPENDS modules] [LIBRARIES libraries]): a plug-in module, once as the
# editor's shared library and once as <NAME>.Static, the engine's monolithic form, for unit tests. Code of the product is
# compiled with the language level and the restrictions of the engine's own build.
function(ue_module name dir)
    cmake_parse_arguments(arg "PRODUCT" "PLUGIN_DIR;EXCLUDE" "DEPENDS;LIBRARIES" ${ARGN})
    ue_sources(sources ${dir})
    if(arg_EXCLUDE)
        list(FILTER sources EXCLUDE REGEX ${arg_EXCLUDE})
    endif()
    get_property(generated GLOBAL PROPERTY UE_GENERATED_SOURCES_${name})
    list(APPEND sources ${generated})
    ue_api_macro(api ${name})
    get_filename_component(parent ${dir} DIRECTORY)

    add_library(${name} SHARED ${sources})
    target_compile_definitions(${name} PRIVATE IS_MONOLITHIC=0 ${api}=DLLEXPORT INTERFACE ${api}=DLLIMPORT)
    add_library(${name}.Static OBJECT ${sources})
    target_compile_definitions(${name}.Static PRIVATE IS_MONOLITHIC=1 PUBLIC ${api}=)
    foreach(target ${name} ${name}.Static)
        target_include_directories(${target} PRIVATE ${dir}/Private
            PUBLIC ${dir}/Public ${parent} ${UE_GENERATED_DIR}/${name})
        target_link_libraries(${target} PUBLIC StandInEngineImport PRIVATE ${arg_LIBRARIES})
        add_dependencies(${target} GeneratedReflection)
        if(arg_PRODUCT)
            set_target_properties(${target} PROPERTIES CXX_STANDARD 14)
            target_compile_options(${target} PRIVATE -fno-rtti -fno-exceptions)
        endif()
    endforeach()
    foreach(other IN LISTS arg_DEPENDS)
        target_link_libraries(${name} PUBLIC ${other})
        target_link_libraries(${name}.Static PUBLIC ${other}.Static)
    endforeach()
    set_target_properties(${name} PROPERTIES OUTPUT_NAME UE4Editor-${name}
        LIBRARY_OUTPUT_DIRECTORY ${arg_PLUGIN_DIR}/Binaries/${UE_PLATFORM_DIR}
        RUNTIME_OUTPUT_DIRECTORY ${arg_PLUGIN_DIR}/Binaries/${UE_PLATFORM_DIR}
        BUILD_RPATH "$ORIGIN;$ORIGIN/../../../../Binaries/${UE_PLATFORM_DIR}")
    ue_late_module(${name})
endfunction()

# ue_late_module(NAME): the target <NAME>.Late, the module's library for programs that call into it once the plug-in manager has
# loaded it. A program for Windows has no list of folders to find libraries in, so there it binds the library at its first call.
function(ue_late_module name)
    add_library(${name}.Late INTERFACE)
    if(NOT WIN32)
        target_link_libraries(${name}.Late INTERFACE ${name})
        return()
    endif()
    set(stem ${CMAKE_BINARY_DIR}/Late/UE4Editor-${name})
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/Late)
    target_link_options(${name} PRIVATE -Wl,--output-def,${stem}.def)
    add_custom_command(OUTPUT ${stem}.a
        COMMAND ${CMAKE_DLLTOOL} --input-def ${stem}.def --dllname $<TARGET_FILE_NAME:${name}> --output-delaylib ${stem}.a
        DEPENDS ${name} VERBATIM)
    add_custom_target(${name}.LateLibrary DEPENDS ${stem}.a)
    add_dependencies(${name}.Late ${name}.LateLibrary)
    target_include_directories(${name}.Late INTERFACE $<TARGET_PROPERTY:${name},INTERFACE_INCLUDE_DIRECTORIES>)
    target_compile_definitions(${name}.Late INTERFACE $<TARGET_PROPERTY:${name},INTERFACE_COMPILE_DEFINITIONS>)
    target_link_libraries(${name}.Late INTERFACE StandInEngineImport ${stem}.a delayimp)
endfunction()

# ue_plugin(NAME): the plug-in folder as it would be installed: descriptor, icons, binaries.
function(ue_plugin name)
    set(plugin_dir ${UE_ENGINE_DIR}/Plugins/${name})
    if(NOT TARGET PkgConfig::OCIO)
        set(without_look_pass EXCLUDE "/LookPass/")
    endif()
    ue_module(Tintmill ${CMAKE_SOURCE_DIR}/StandIn/Tintmill PLUGIN_DIR ${plugin_dir} ${without_look_pass}
        LIBRARIES TintmillLookLibraries)
    ue_module(TintmillEditor ${CMAKE_SOURCE_DIR}/Source/TintmillEditor PRODUCT PLUGIN_DIR ${plugin_dir} DEPENDS Tintmill)
    set(stamp ${plugin_dir}/.staged)
    file(GLOB icons CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/Editor/Icons/*.png)
    add_custom_command(OUTPUT ${stamp}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${plugin_dir}/Editor/Icons
        COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/${name}.uplugin ${plugin_dir}/${name}.uplugin
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${CMAKE_SOURCE_DIR}/Editor/Icons ${plugin_dir}/Editor/Icons
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS ${CMAKE_SOURCE_DIR}/${name}.uplugin ${icons} VERBATIM)
    add_custom_target(${name}Plugin ALL DEPENDS ${stamp})
    add_dependencies(${name}Plugin Tintmill TintmillEditor)
endfunction()

# ue_product_flags(TARGET FILE): include folders and definitions of the target as a response file, for checks outside the build.
function(ue_product_flags target file)
    file(GENERATE OUTPUT ${file} CONTENT
        "-I$<JOIN:$<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>,\n-I>\n-D$<JOIN:$<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>,\n-D>\n")
endfunction()
