# What every target of the project is compiled with, and the one way to declare each kind of target.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_C_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_COMPILE_WARNING_AS_ERROR ON)
endif()

# cgc_compile_options(<target>): warnings, and a __FILE__ that starts at the project's top folder.
function(cgc_compile_options target)
    target_compile_options(
        ${target}
        PRIVATE -Wall -Wextra -Wconversion -Wshadow "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/="
    )
    if(CMAKE_UNITY_BUILD) # g++ takes sources that are joined for headers
        target_compile_options(${target} PRIVATE $<$<COMPILE_LANG_AND_ID:CXX,GNU>:-Wno-subobject-linkage>)
    endif()
endfunction()

# cgc_harden(<target>): what reads strangers' texts on hosts ends where its stack or an array is overrun, and its program or
# library has nothing in memory that is both written and executed or looked up late. What a base station links has the
# linker's part alone: a check of each frame would cost decoding 2 in 100 instructions.
function(cgc_harden target)
    if(CELLGROUPCFG_HARDENING AND CMAKE_BUILD_TYPE STREQUAL "Release" AND NOT CMAKE_CROSSCOMPILING)
        target_compile_options(${target} PRIVATE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    endif()
    cgc_bind(${target})
endfunction()

# cgc_bind(<target>): of a shared library or a program: all is looked up when it is loaded, and cannot be written then.
function(cgc_bind target)
    if(CELLGROUPCFG_HARDENING)
        target_link_options(${target} PRIVATE LINKER:-z,relro,-z,now)
    endif()
endfunction()

# What g++ 12 does by itself is slow for elements of some hundred octets that are cleared one by one, and for the
# encoder's two registers: it clears with string instructions and joins the registers in a vector that it stores and
# loads. bench/README.md says how to measure it.
# What a header declares can be offered by a shared library, and is inlined all the same.
set(CGC_GNU_OPTIONS -fno-tree-slp-vectorize -fno-semantic-interposition)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "x86_64|AMD64")
    list(APPEND CGC_GNU_OPTIONS -mmemset-strategy=unrolled_loop:64:noalign,libcall:-1:noalign)
endif()

# cgc_library(<target> [HOST] ALIAS <name> SOURCES <file>... [INCLUDES <folder>...] [TYPE STATIC|SHARED|OBJECT])
# A library that a product links: no exceptions, no RTTI, installed with the package as cellgroupcfg::<name>. With HOST one
# of the whole standard library, which no base station links and in which exhausted memory is an exception.
# INCLUDES are the folders whose headers its users see.
function(cgc_library target)
    cmake_parse_arguments(arg "HOST" "ALIAS;TYPE" "SOURCES;INCLUDES" ${ARGN})
    if(NOT arg_TYPE)
        set(arg_TYPE STATIC)
    endif()

    add_library(${target} ${arg_TYPE} ${arg_SOURCES})
    cgc_compile_options(${target})
    if(arg_HOST)
        cgc_harden(${target})
    else()
        target_compile_options(
            ${target}
            PRIVATE
                $<$<COMPILE_LANGUAGE:CXX>:-fno-exceptions -fno-rtti>
                "$<$<COMPILE_LANG_AND_ID:CXX,GNU>:${CGC_GNU_OPTIONS}>"
        )
    endif()
    foreach(folder IN LISTS arg_INCLUDES)
        cmake_path(SET path NORMALIZE "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
        target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${path}>)
    endforeach()

    if(arg_ALIAS)
        add_library(cellgroupcfg::${arg_ALIAS} ALIAS ${target})
        set_target_properties(${target} PROPERTIES EXPORT_NAME ${arg_ALIAS})
        set_property(GLOBAL APPEND PROPERTY CELLGROUPCFG_PACKAGE_TARGETS ${target})
    endif()
endfunction()

# cgc_provides(<target> <symbol>...)
# The library is a default that a product may replace: other libraries call these functions without linking it. A
# program that links it asks for them from the start, wherever the library stands on the link line; what the program
# defines itself is not taken from it.
function(cgc_provides target)
    foreach(symbol IN LISTS ARGN)
        target_link_options(${target} INTERFACE LINKER:--undefined=${symbol})
    endforeach()
endfunction()

# cgc_install_headers(<folder>): the folder's headers, subfolders kept, go to the package's include folder.
function(cgc_install_headers folder)
    if(CELLGROUPCFG_INSTALL)
        install(
            DIRECTORY ${folder}/
            DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/cellgroupcfg"
            COMPONENT development
            FILES_MATCHING
            PATTERN "*.h"
        )
    endif()
endfunction()

# cgc_shared(<target> MAP <file>)
# A shared library offers what its map names, under the version of its ABI; everything else in it is out of sight.
function(cgc_shared target)
    cmake_parse_arguments(arg "" "MAP" "" ${ARGN})
    set(map "${CMAKE_CURRENT_BINARY_DIR}/${arg_MAP}")
    configure_file("${arg_MAP}.in" "${map}" @ONLY)
    cgc_bind(${target})
    set_target_properties(
        ${target}
        PROPERTIES VERSION ${CELLGROUPCFG_ABI}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH} SOVERSION ${CELLGROUPCFG_ABI} LINK_DEPENDS "${map}"
    )
    target_link_options(
        ${target} PRIVATE "LINKER:--version-script=${map}" LINKER:--exclude-libs,ALL LINKER:--as-needed
    )
endfunction()

# cgc_program(<target> SOURCES <file>... LIBS <library>...): an example, a benchmark, a tool.
function(cgc_program target)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBS" ${ARGN})
    add_executable(${target} ${arg_SOURCES})
    cgc_compile_options(${target})
    target_link_libraries(${target} PRIVATE ${arg_LIBS})
endfunction()

# cgc_test(<name> SOURCES <file>... LIBS <library>...)
# One test executable with GoogleTest's main and one ctest of the same name, run in the project's top folder.
function(cgc_test name)
    cgc_program(${name} ${ARGN})
    target_compile_options(${name} PRIVATE -O0) # what is tested is optimised, the test itself need not be
    target_link_libraries(${name} PRIVATE GTest::gmock_main)
    cgc_use_test_headers(${name})
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}")
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
    cgc_label_threads(${name})
endfunction()

# Reading GoogleMock's headers takes longer than most tests: they are compiled once. A target with files in C, too, cannot
# use that.
function(cgc_use_test_headers name)
    get_target_property(sources ${name} SOURCES)
    if(NOT sources MATCHES "\\.c(;|$)")
        target_precompile_headers(${name} REUSE_FROM cellgroupcfg_test_headers)
    endif()
endfunction()

# Gives a test that starts threads the label of that name and lets the target cellgroupcfg_threads build it: those are what the
# thread sanitizer looks at.
if(CELLGROUPCFG_BUILD_TESTS)
    add_custom_target(cellgroupcfg_threads)
endif()
function(cgc_label_threads name)
    get_target_property(sources ${name} SOURCES)
    foreach(source IN LISTS sources)
        get_filename_component(source "${source}" ABSOLUTE)
        if(NOT EXISTS "${source}") # generated
            continue()
        endif()
        file(STRINGS "${source}" starts REGEX "std::j?thread|std::async|pthread_create")
        if(starts)
            set_property(TEST ${name} PROPERTY LABELS threads)
            add_dependencies(cellgroupcfg_threads ${name})
        endif()
    endforeach()
endfunction()

# cgc_benchmark(<name> SOURCES <file>... LIBS <library>...)
# A program of Google Benchmark, with its main, in <build>/benchmarks; scripts/test-bench.sh runs all that lie there.
function(cgc_benchmark name)
    cgc_program(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE benchmark::benchmark_main)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/benchmarks")
endfunction()

# cgc_fuzzer(<name> SOURCES <file>... LIBS <library>...)
# A fuzzer in <build>/fuzzers, of the target `fuzzers`; scripts/test-fuzz.sh feeds it fuzz/corpus/<name>. The engine is
# libFuzzer, or another one as fuzz/build.sh says: an option or a library.
if(CELLGROUPCFG_BUILD_FUZZ)
    set(CELLGROUPCFG_FUZZING_ENGINE "-fsanitize=fuzzer" CACHE STRING "What a fuzzer is linked with")
    add_custom_target(fuzzers)
endif()
function(cgc_fuzzer name)
    cgc_program(${name} ${ARGN})
    add_dependencies(fuzzers ${name})
    if(CELLGROUPCFG_FUZZING_ENGINE MATCHES "^-f")
        target_link_options(${name} PRIVATE ${CELLGROUPCFG_FUZZING_ENGINE})
    else()
        target_link_libraries(${name} PRIVATE ${CELLGROUPCFG_FUZZING_ENGINE})
    endif()
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/fuzzers")
endfunction()

# cgc_corpus_test(<name> FUZZER <fuzzer> LIBS <library>...)
# A fuzzer's function on each file of its corpus, with this build's compiler and checks.
function(cgc_corpus_test name)
    cmake_parse_arguments(arg "" "FUZZER" "LIBS" ${ARGN})
    set(folder "${PROJECT_SOURCE_DIR}/fuzz")
    cgc_program(${name} SOURCES "${folder}/${arg_FUZZER}Fuzz.cpp" "${folder}/replay.cpp" LIBS ${arg_LIBS})
    add_test(NAME ${name} COMMAND ${name} "${folder}/corpus/${arg_FUZZER}")
    set_tests_properties(${name} PROPERTIES TIMEOUT 300)
endfunction()

# cgc_composer_test(<name> SOURCES <file>...)
# A test of composers: heap requests can be made to fail, any named type can be encoded, and the messages given to
# expectDecoded() go to the independent decoder in the test oracle.messages.
function(cgc_composer_test name)
    cgc_message_test(${name} ${ARGN} LIBS cellgroupcfg_internals cellgroupcfg::du cellgroupcfg::platform)
endfunction()

# cgc_message_test(<name> SOURCES <file>... LIBS <library>...)
# The same for a test that needs no composers.
function(cgc_message_test name)
    cgc_test(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE cellgroupcfg_composer_test)
    target_link_options(${name} PRIVATE LINKER:--wrap=rtxMemHeapAlloc LINKER:--undefined=__wrap_rtxMemHeapAlloc)
    set(messages "${PROJECT_BINARY_DIR}/oracle/${name}.messages")
    set_tests_properties(
        ${name}
        PROPERTIES ENVIRONMENT "CELLGROUPCFG_ORACLE_FILE=${messages}" FIXTURES_SETUP oracle_messages FIXTURES_REQUIRED oracle_folder
    )
endfunction()

# cgc_python(<variable> <module>...): a Python that has these modules, of Debian's packages or of whichever python3 is
# first in PATH; else NOTFOUND.
function(cgc_python variable)
    find_package(Python3 COMPONENTS Interpreter QUIET)
    list(JOIN ARGN ", " imports)
    set(${variable} NOTFOUND PARENT_SCOPE)
    foreach(candidate IN ITEMS /usr/bin/python3 ${Python3_EXECUTABLE})
        execute_process(COMMAND "${candidate}" -c "import ${imports}" RESULT_VARIABLE missing OUTPUT_QUIET ERROR_QUIET)
        if(missing EQUAL 0)
            set(${variable} "${candidate}" PARENT_SCOPE)
            break()
        endif()
    endforeach()
endfunction()
