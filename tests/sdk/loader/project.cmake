# A host in little, built against the installed SDK alone.
cmake_minimum_required(VERSION 3.25)
project(loader LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets)
find_package(ReferenceHost REQUIRED)
add_executable(loader main.cpp)
target_link_libraries(loader PRIVATE Host::serdesip Host::core Host::dev Qt5::Widgets)
