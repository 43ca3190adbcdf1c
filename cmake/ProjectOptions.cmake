# What every target of this project shares: the language level, the warnings, Qt's strictness,
# and the output folders, which have the shape of an installed tree.
include_guard(GLOBAL)

option(WARNINGS_AS_ERRORS "Stop the build at the first warning" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
# Relative, so that a build tree or an installed tree can be moved or packed as it is.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib")

# Where things lie below the prefix, in the build tree and in the installed tree alike.
set(IP_DIR lib/ipgen/ip)             # one folder an IP: plug-in, description, data
set(HOST_DATA_DIR share/ipgen/host)  # devices.json and other data of the reference host
set(TRANSLATION_DIR share/ipgen/translations)

# project_options(TARGET): applied to every target.
function(project_options target)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor
    $<$<BOOL:${WARNINGS_AS_ERRORS}>:-Werror>)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_DEPRECATED_WARNINGS)
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
endfunction()
