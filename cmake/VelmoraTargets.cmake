# One folder, one target. The functions below are the only way targets are made, so that the walls
# between folders are the same everywhere: a target sees Qt only when it says so.

# velmora_logic(<target> <folder> LINKS <targets...>): standard C++ only.
function(velmora_logic target folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.cpp")
  file(GLOB headers CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/src/${folder}/*.h")
  if(sources)
    add_library(${target} STATIC ${sources})
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_sources(${target} ${scope} FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/src" FILES ${headers})
  target_include_directories(${target} ${scope} "${PROJECT_SOURCE_DIR}/src")
  target_link_libraries(${target} ${scope} ${arg_LINKS})
endfunction()

# velmora_qt(<target> <folder> LINKS <targets...>): may include Qt Widgets.
function(velmora_qt target folder)
  velmora_logic(${target} ${folder} ${ARGN})
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "INTERFACE_LIBRARY")
    target_link_libraries(${target} INTERFACE Qt6::Widgets)
  else()
    set_target_properties(${target} PROPERTIES AUTOMOC ON)
    target_link_libraries(${target} PUBLIC Qt6::Widgets)
    target_compile_definitions(${target} PUBLIC QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
  endif()
endfunction()

# velmora_test(<target> <folder> LINKS <targets...>): every tests/<folder>/*Test.cpp in one program.
# Each program writes its results for the closing count of ./test.
function(velmora_test target folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  file(GLOB sources CONFIGURE_DEPENDS "${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp")
  if(NOT sources)
    return()
  endif()
  add_executable(${target} ${sources})
  target_include_directories(${target} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
  target_link_libraries(${target} PRIVATE ${arg_LINKS} velmora_test_support GTest::gmock)
  add_test(NAME ${target} COMMAND ${target} --gtest_output=xml:${PROJECT_BINARY_DIR}/results/${target}.xml)
endfunction()
