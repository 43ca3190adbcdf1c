# qt_test(NAME SOURCES file... [LIBS target...] [LABELS label...] [TIMEOUT seconds] [DEFINES d...])
# One Qt Test program, run headless. Tests find the tree's programs and data through the macros
# below, never through the current folder.
include_guard(GLOBAL)

find_package(Qt5 5.15 REQUIRED COMPONENTS Test)

function(qt_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LIBS;LABELS;DEFINES" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  project_options(${name})
  target_link_libraries(${name} PRIVATE Qt5::Test ${arg_LIBS})
  target_compile_definitions(${name} PRIVATE
    SOURCE_DIR="${PROJECT_SOURCE_DIR}" BUILD_DIR="${PROJECT_BINARY_DIR}" ${arg_DEFINES})
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/tests)
  add_test(NAME ${name} COMMAND ${name})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 120)
  endif()
  set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_TIMEOUT} LABELS "${arg_LABELS}"
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
endfunction()
