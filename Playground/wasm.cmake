# Makes playground.wasm of the libraries; its path is playground_program.
set(wasm_options
    --target=wasm32-wasi -std=c++20 -Os -fno-exceptions -fno-rtti -fvisibility=hidden -ffunction-sections -fdata-sections
    -DNDEBUG -DJSON_HAS_FILESYSTEM=0 -DJSON_HAS_EXPERIMENTAL_FILESYSTEM=0 -Wall -Wextra -Werror "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
)
# A folder with nothing but this library's headers: those beside it are of another system.
set(wasm_folder "${CMAKE_CURRENT_BINARY_DIR}/wasm")
file(MAKE_DIRECTORY "${wasm_folder}/include")
file(CREATE_LINK "${CELLGROUPCFG_NLOHMANN}/nlohmann" "${wasm_folder}/include/nlohmann" SYMBOLIC)

set(wasm_objects)
# wasm_compile(<name> INCLUDES <folders> SOURCES <file>...)
function(wasm_compile name)
    cmake_parse_arguments(arg "" "" "INCLUDES;SOURCES" ${ARGN})
    set(joined "${wasm_folder}/${name}.cpp")
    set(lines "")
    foreach(source IN LISTS arg_SOURCES)
        string(APPEND lines "#include \"${source}\"\n")
    endforeach()
    file(CONFIGURE OUTPUT "${joined}" CONTENT "${lines}" @ONLY)
    set(object "${wasm_folder}/${name}.o")
    add_custom_command(
        OUTPUT "${object}"
        COMMAND
            ${CMAKE_CXX_COMPILER_LAUNCHER} "${CELLGROUPCFG_WASM_COMPILER}" ${wasm_options}
            "-I$<JOIN:$<FILTER:$<REMOVE_DUPLICATES:${arg_INCLUDES}>,EXCLUDE,^/usr/include$>,;-I>" -isystem
            "${wasm_folder}/include" -MD -MF "${object}.d" -c "${joined}" -o "${object}"
        DEPENDS "${joined}" ${arg_SOURCES}
        DEPFILE "${object}.d"
        COMMAND_EXPAND_LISTS
        VERBATIM
    )
    set(wasm_objects ${wasm_objects} "${object}" PARENT_SCOPE)
endfunction()

# The platform layer is another one but for its memory, and so is what reads files.
set(wasm_libraries
    cellgroupcfg_asn1rt
    cellgroupcfg_nrrrc
    cellgroupcfg_objects
    cellgroupcfg_du
    cellgroupcfg_record_types
    cellgroupcfg_formulas
    cellgroupcfg_model
    cellgroupcfg_rules
    cellgroupcfg_explain
    cellgroupcfg_nearest
    cellgroupcfg_json
    cellgroupcfg_input
    cellgroupcfg_draw
    cellgroupcfg_page
)
foreach(library IN LISTS wasm_libraries)
    get_target_property(folder ${library} SOURCE_DIR)
    get_target_property(sources ${library} SOURCES)
    list(FILTER sources EXCLUDE REGEX "Src/files\\.cpp$")
    list(TRANSFORM sources REPLACE "^([^/].*)$" "${folder}/\\1")
    wasm_compile(${library} SOURCES ${sources} INCLUDES "$<TARGET_PROPERTY:${library},INCLUDE_DIRECTORIES>")
endforeach()
set(module_libraries page input json record_types)
set(module_includes "${PROJECT_SOURCE_DIR}/Json/Src")
foreach(library IN LISTS module_libraries)
    list(APPEND module_includes "$<TARGET_PROPERTY:cellgroupcfg_${library},INCLUDE_DIRECTORIES>")
endforeach()
set(module_sources Playground/Module/platform.cpp Playground/Module/playground.cpp Platform/src/vos_mem.cpp Platform/src/vos_module.cpp)
list(TRANSFORM module_sources PREPEND "${PROJECT_SOURCE_DIR}/")
wasm_compile(module SOURCES ${module_sources} INCLUDES "${module_includes}")

set(module "${CMAKE_CURRENT_BINARY_DIR}/playground.wasm")
set(playground_program "${module}.gz")
add_custom_command(
    OUTPUT "${playground_program}"
    COMMAND
        "${CELLGROUPCFG_WASM_COMPILER}" --target=wasm32-wasi -mexec-model=reactor -Os ${wasm_objects}
        -Wl,--gc-sections,--strip-all,-z,stack-size=4194304,--max-memory=1073741824 -o "${module}"
    COMMAND sh -c "gzip -9n <\"$1\" >\"$2\"" sh "${module}" "${playground_program}"
    DEPENDS ${wasm_objects}
    VERBATIM
)
add_custom_target(cellgroupcfg_playground_program DEPENDS "${playground_program}")
