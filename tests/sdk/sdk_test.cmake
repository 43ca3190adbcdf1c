# Installs the host's SDK into a scratch folder, copies the plug-in's sources out of the tree,
# builds them there with find_package against that SDK, and loads the result with a program that
# is built in the same way. The scratch folder stays after a failure.
cmake_minimum_required(VERSION 3.25)

function(run what)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE said ERROR_VARIABLE said)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${what} (${status}):\n${said}")
  endif()
  set(said "${said}" PARENT_SCOPE)
endfunction()

file(REMOVE_RECURSE ${SCRATCH})
file(MAKE_DIRECTORY ${SCRATCH})

# The host's part of the build tree only: nothing of the plug-in can come in with the SDK.
run("the SDK does not install" ${CMAKE_COMMAND} --install ${BUILD_DIR}/host --prefix ${SCRATCH}/sdk)
file(GLOB_RECURSE installed RELATIVE ${SCRATCH}/sdk ${SCRATCH}/sdk/*)
if(installed MATCHES "customized")
  message(FATAL_ERROR "the host's SDK holds files of the plug-in:\n${installed}")
endif()

foreach(folder plugin model dialog ip cmake)
  file(COPY ${SOURCE_DIR}/${folder} DESTINATION ${SCRATCH}/tree)
endforeach()

set(settings -G ${GENERATOR} -D CMAKE_BUILD_TYPE=${BUILD_TYPE} "-DCMAKE_CXX_FLAGS=${CXX_FLAGS}"
  -D CMAKE_CXX_COMPILER=${CXX_COMPILER} -D CMAKE_PREFIX_PATH=${SCRATCH}/sdk
  -D CMAKE_EXPORT_COMPILE_COMMANDS=ON -D WARNINGS_AS_ERRORS=ON
  -D CMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
run("the plug-in does not configure against the SDK"
  ${CMAKE_COMMAND} -S ${SCRATCH}/tree/plugin -B ${SCRATCH}/plugin ${settings})
file(READ ${SCRATCH}/plugin/compile_commands.json commands)
# A scratch folder below the source tree is not the source tree.
string(REPLACE "${SCRATCH}" "SCRATCH" commands "${commands}")
foreach(folder ${SOURCE_DIR} ${BUILD_DIR})
  string(FIND "${commands}" "${folder}/" place)
  if(NOT place EQUAL -1)
    string(SUBSTRING "${commands}" ${place} 200 excerpt)
    message(FATAL_ERROR "the plug-in reaches back into ${folder}: ${excerpt}")
  endif()
endforeach()
run("the plug-in does not build against the SDK" ${CMAKE_COMMAND} --build ${SCRATCH}/plugin)

file(GLOB_RECURSE module ${SCRATCH}/plugin/libcustomized.so)
list(LENGTH module count)
if(NOT count EQUAL 1)
  message(FATAL_ERROR "${count} plug-ins were built instead of one: ${module}")
endif()

# Its project file has another name in the tree, where every CMakeLists.txt is a folder of tests.
file(COPY ${SOURCE_DIR}/tests/sdk/loader/main.cpp DESTINATION ${SCRATCH}/tree/loader)
file(COPY_FILE ${SOURCE_DIR}/tests/sdk/loader/project.cmake ${SCRATCH}/tree/loader/CMakeLists.txt)
run("the loader does not configure against the SDK"
  ${CMAKE_COMMAND} -S ${SCRATCH}/tree/loader -B ${SCRATCH}/loader ${settings})
run("the loader does not build against the SDK" ${CMAKE_COMMAND} --build ${SCRATCH}/loader)
run("the plug-in does not load" ${SCRATCH}/loader/loader ${module} ${SCRATCH}/out)
if(NOT said MATCHES "one protocol: customized\n")
  message(FATAL_ERROR "the loader said:\n${said}")
endif()
foreach(file define.vh param.v customized.ini)
  file(SIZE ${SCRATCH}/out/sdk/temp/CUSTOMIZED/${file} size)
  if(size EQUAL 0)
    message(FATAL_ERROR "${file} is empty")
  endif()
endforeach()
file(REMOVE_RECURSE ${SCRATCH})
