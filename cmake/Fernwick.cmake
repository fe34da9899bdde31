# What every folder's CMakeLists.txt uses: one library a folder, one test program a folder of tests.

option(FERNWICK_TESTS "Build the tests" ON)
option(FERNWICK_BENCH "Build the benchmarks" OFF)
option(FERNWICK_WORKBENCH "Build the desktop, which needs Qt 6" ON)
option(FERNWICK_CHECK_HEADERS "Make a target that compiles the headers without a source" OFF)
option(FERNWICK_FUZZ "Build the fuzz targets (clang)" OFF)
option(FERNWICK_SLOT_TAGS "Check the types of all operands while compiled code runs: for the fuzz targets" OFF)
option(FERNWICK_RUNTIME_ONLY "Build only the runtime, which needs nothing but the standard library: for other machines" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# -O3 buys nothing measurable here and costs build time.
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
# g++ 12 reports std::string's own inlined copies (its bugs 105329 and 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  add_compile_options(-Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread -Wno-array-bounds)
endif()
include_directories(${PROJECT_SOURCE_DIR})
if(CMAKE_SYSTEM_NAME STREQUAL Linux AND CMAKE_SIZEOF_VOID_P EQUAL 4)
  # Times after 2038 and files above 2 GB, also where the C library has them only on request.
  add_compile_definitions(_TIME_BITS=64 _FILE_OFFSET_BITS=64)
endif()

# fernwick_library(NAME [LINK ...] [PRIVATE_LINK ...] [FOLDERS ...]): a static library of all .cpp files in this folder and
# in the rooms that FOLDERS lists, from the ground up: a room may include those before it, and this folder is on top of them
# unless the list has it as "." (scripts/check-layers). A folder without a .cpp is an interface library.
function(fernwick_library name)
  cmake_parse_arguments(arg "" "" "LINK;PRIVATE_LINK;FOLDERS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *.cpp)
  file(GLOB headers CONFIGURE_DEPENDS *.h)
  list(REMOVE_ITEM arg_FOLDERS .)
  foreach(folder IN LISTS arg_FOLDERS)
    file(GLOB more CONFIGURE_DEPENDS ${folder}/*.cpp)
    list(APPEND sources ${more})
    file(GLOB more CONFIGURE_DEPENDS ${folder}/*.h)
    list(APPEND headers ${more})
  endforeach()
  if(sources)
    add_library(${name} STATIC ${sources})
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE ${arg_PRIVATE_LINK})
    set(scope PUBLIC)
    target_precompile_headers(${name} PRIVATE <algorithm> <functional> <map> <memory> <optional> <string> <string_view> <vector>)
  else()
    add_library(${name} INTERFACE)
    target_link_libraries(${name} INTERFACE ${arg_LINK})
    set(scope INTERFACE)
  endif()
  # The target all_verify_interface_header_sets compiles each header that no source begins with, without the precompiled one.
  if(FERNWICK_CHECK_HEADERS)
    foreach(source IN LISTS sources)
      string(REGEX REPLACE "\\.cpp$" ".h" header ${source})
      list(REMOVE_ITEM headers ${header})
    endforeach()
    target_sources(${name} ${scope} FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${headers})
    set_target_properties(${name} PROPERTIES VERIFY_INTERFACE_HEADER_SETS ON)
  endif()
endfunction()

# fernwick_test(NAME LINK ... [PROPERTIES ...]): a test program of all *_test.cpp files in this folder, and what ctest is to
# know of its tests.
function(fernwick_test name)
  cmake_parse_arguments(arg "" "" "LINK;PROPERTIES" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS *_test.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(${name} ${sources})
  target_link_libraries(${name} PRIVATE ${arg_LINK} GTest::gtest GTest::gmock GTest::gtest_main)
  target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <gmock/gmock.h> <string> <vector>)
  target_compile_definitions(${name} PRIVATE FERNWICK_SOURCE_DIR="${PROJECT_SOURCE_DIR}" FERNWICK_BINARY_DIR="${PROJECT_BINARY_DIR}")
  # Tests run once, and optimizing them takes longer than that. A fixture may live in an unnamed namespace; in a unity build
  # the compiler takes the test's file for a header.
  target_compile_options(${name} PRIVATE -O0 $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  # ctest knows each test by its folder and name: ctest -R '^build\.Validate'
  get_filename_component(folder ${CMAKE_CURRENT_SOURCE_DIR} NAME)
  gtest_discover_tests(${name} TEST_PREFIX ${folder}. EXTRA_ARGS --gtest_brief=1 DISCOVERY_TIMEOUT 60
    PROPERTIES TIMEOUT 300 ${arg_PROPERTIES})
endfunction()
