# How every target of this project is compiled: includes from the root, warnings on, hardened, or sanitized on request.
include_guard(GLOBAL)

add_library(tambrelle_options INTERFACE)
target_include_directories(tambrelle_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(tambrelle_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wnon-virtual-dtor
  -Wold-style-cast -Wcast-align -Woverloaded-virtual -Wnull-dereference -Wimplicit-fallthrough
  # A constructor's parameter may bear the name of the member that it fills; one local may not hide another.
  $<$<CXX_COMPILER_ID:GNU>:-Wshadow=local>)

if(CMAKE_UNITY_BUILD)
  # Each test's unnamed namespace is then in a file that includes it.
  target_compile_options(tambrelle_options INTERFACE -Wno-subobject-linkage)
endif()

option(TAMBRELLE_WERROR "Treat warnings as errors" OFF)
if(TAMBRELLE_WERROR)
  target_compile_options(tambrelle_options INTERFACE -Werror)
endif()

# Checked targets of indirect jumps, where the processor's family has them.
include(CheckCXXCompilerFlag)
check_cxx_compiler_flag(-fcf-protection=full TAMBRELLE_HAS_CF_PROTECTION)
set(TAMBRELLE_CONTROL_FLOW $<$<BOOL:${TAMBRELLE_HAS_CF_PROTECTION}>:-fcf-protection=full>)

if(TAMBRELLE_SANITIZE)
  target_compile_options(tambrelle_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    -g1) # of the debugging information only what a trace needs
  target_link_options(tambrelle_options INTERFACE -fsanitize=address,undefined)
elseif(TAMBRELLE_FUZZ)
  target_compile_options(tambrelle_options INTERFACE
    -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize=vptr -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tambrelle_options INTERFACE -fsanitize=address,undefined)
elseif(TAMBRELLE_COVERAGE)
  target_compile_options(tambrelle_options INTERFACE --coverage -fprofile-abs-path)
  target_link_options(tambrelle_options INTERFACE --coverage)
else()
  # GCC 12 knows the third level of fortification; an older compiler takes it for the second.
  target_compile_options(tambrelle_options INTERFACE
    -fstack-protector-strong -fstack-clash-protection ${TAMBRELLE_CONTROL_FLOW}
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=3> -D_GLIBCXX_ASSERTIONS)
  target_link_options(tambrelle_options INTERFACE
    -Wl,-z,relro,-z,now,-z,noexecstack -Wl,--as-needed ${TAMBRELLE_CONTROL_FLOW})
endif()

# The place of the sources must not get into the programs: two builds of one commit are to be the same bytes.
target_compile_options(tambrelle_options INTERFACE
  -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${CMAKE_BINARY_DIR}=build)

include(CheckPIESupported)
check_pie_supported()

# tambrelle_library(NAME FILES...): a static library of one room, built with the options above.
function(tambrelle_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PUBLIC tambrelle_options)
endfunction()

# tambrelle_program(NAME FILES...): a program that lands at the top of the build tree.
function(tambrelle_program name)
  add_executable(${name} ${ARGN})
  target_link_libraries(${name} PRIVATE tambrelle_options)
endfunction()

# tambrelle_precompile(NAME HEADERS...): reads these, which nearly every file of a target includes, once for all of them. They
# are best others' headers, so that a changed one of ours compiles no more than what includes it; each file includes what it
# uses nonetheless, and is read without this by clang-tidy. Files that are read together share their headers anyway.
function(tambrelle_precompile name)
  get_target_property(together ${name} UNITY_BUILD)
  if(NOT together AND NOT TAMBRELLE_FUZZ AND NOT TAMBRELLE_COVERAGE)
    target_precompile_headers(${name} PRIVATE ${ARGN})
    # Lets a compiler cache see through them.
    target_compile_options(${name} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()

# tambrelle_test(NAME FILES...): a GoogleTest program, one ctest entry for each of its tests. Its own code is compiled as it
# stands: to optimize what runs once takes longer than it saves. The libraries that it tests are those of the program.
function(tambrelle_test name)
  tambrelle_program(${name} ${ARGN})
  target_compile_options(${name} PRIVATE -O0 -U_FORTIFY_SOURCE)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tests)
endfunction()
