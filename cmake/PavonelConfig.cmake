# One interface target that carries the language standard, the warnings and the sanitizers;
# every target of the project links it.
add_library(pavonel_config INTERFACE)
add_library(Pavonel::config ALIAS pavonel_config)

target_compile_features(pavonel_config INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)

if(MSVC)
    target_compile_options(pavonel_config INTERFACE /W4 /WX /utf-8)
else()
    target_compile_options(pavonel_config INTERFACE -Wall -Wextra -Wpedantic -Werror)
    # GCC 12 raises -Wrestrict on correct "literal" + std::string at -O2 and above (GCC bug 105651).
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(pavonel_config INTERFACE -Wno-restrict)
    endif()
endif()

if(WIN32)
    target_compile_definitions(pavonel_config INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX)
    # Every executable runs in the UTF-8 code page (Windows 10 1903 and later, and Wine), so the narrow
    # texts of the "A" functions, the settings and the language files are UTF-8 as on Linux. Executables
    # with windows (PAVONEL_WINDOWED) also ask for the common controls 6 (visual styles) and per-monitor DPI
    # awareness; the program itself brings its own resource script with the same manifest.
    set(PAVONEL_MANIFEST ${PROJECT_SOURCE_DIR}/src/platform/win32/Utf8CodePage.manifest)
    configure_file(${PROJECT_SOURCE_DIR}/src/platform/win32/Utf8CodePage.rc.in
                   ${PROJECT_BINARY_DIR}/generated/Utf8CodePage.rc @ONLY)
    set(PAVONEL_MANIFEST ${PROJECT_SOURCE_DIR}/src/platform/win32/Program.manifest)
    configure_file(${PROJECT_SOURCE_DIR}/src/platform/win32/Utf8CodePage.rc.in
                   ${PROJECT_BINARY_DIR}/generated/Windowed.rc @ONLY)
    set(_pavonel_kind $<TARGET_PROPERTY:PAVONEL_RESOURCES>)
    set(_pavonel_exe $<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>)
    target_sources(pavonel_config INTERFACE
        $<$<AND:${_pavonel_exe},$<STREQUAL:${_pavonel_kind},>>:${PROJECT_BINARY_DIR}/generated/Utf8CodePage.rc>
        $<$<AND:${_pavonel_exe},$<STREQUAL:${_pavonel_kind},windowed>>:${PROJECT_BINARY_DIR}/generated/Windowed.rc>)
endif()

if(PAVONEL_SANITIZE)
    set(_pavonel_sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(pavonel_config INTERFACE ${_pavonel_sanitizers})
    target_link_options(pavonel_config INTERFACE ${_pavonel_sanitizers})
endif()

if(PAVONEL_BUILD_FUZZERS)
    # Coverage instrumentation for everything the fuzz targets reach; the targets add libFuzzer's main.
    set(_pavonel_fuzzing -fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer)
    target_compile_options(pavonel_config INTERFACE ${_pavonel_fuzzing})
    target_link_options(pavonel_config INTERFACE -fsanitize=address,undefined)
endif()

configure_file(${PROJECT_SOURCE_DIR}/cmake/Version.h.in ${PROJECT_BINARY_DIR}/generated/Version.h @ONLY)
target_include_directories(pavonel_config INTERFACE ${PROJECT_BINARY_DIR}/generated)
