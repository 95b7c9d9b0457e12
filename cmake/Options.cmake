# One INTERFACE target carries the language standard, the warnings and Qt's own guards; nothing is set globally.
add_library(orvantine_options INTERFACE)
target_compile_features(orvantine_options INTERFACE cxx_std_20)
target_compile_options(orvantine_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wimplicit-fallthrough)
target_compile_definitions(orvantine_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CONTEXTLESS_CONNECT
    QT_NO_FOREACH
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(ORVANTINE_SANITIZE)
    target_compile_options(orvantine_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(orvantine_options INTERFACE -fsanitize=address,undefined)
endif()

if(ORVANTINE_FUZZ)
    set(fuzz_checks -fsanitize=fuzzer-no-link,address,undefined,float-cast-overflow)
    target_compile_options(orvantine_options INTERFACE
        ${fuzz_checks} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(orvantine_options INTERFACE ${fuzz_checks})
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

# orvantine_floor(name FLOOR... ) makes the static library of one folder, linked to the folders below it.
#   SOURCES: its files; LINKS: the libraries below; PRECOMPILE: the header to precompile.
function(orvantine_floor name)
    cmake_parse_arguments(FLOOR "" "PRECOMPILE" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${FLOOR_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTOUIC ON)
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(${name} PUBLIC orvantine_options ${FLOOR_LINKS})
    if(FLOOR_PRECOMPILE)
        target_compile_options(${name} PRIVATE -fpch-preprocess)
        target_precompile_headers(${name} PRIVATE ${FLOOR_PRECOMPILE})
    endif()
endfunction()
