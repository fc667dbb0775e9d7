# What the top-level list sets up for all folders, for a library that is configured by itself.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
option(PURSEWELL_TESTS "Build the tests" OFF)
find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Network Widgets)
include(${CMAKE_CURRENT_LIST_DIR}/Layers.cmake)
