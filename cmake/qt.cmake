# Qt is there for the native build; Debian has none for the cross compiler, so the Windows build
# makes everything but the windows. What is plain C++ below them is compiled for both.
if(WIN32 OR TAVMOOR_FUZZ)
    set(TAVMOOR_WINDOWS_OF_PROGRAM OFF)
    message(STATUS "No Qt for this target: the program with windows is left out")
else()
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Multimedia PrintSupport Svg)
    set(TAVMOOR_WINDOWS_OF_PROGRAM ON)
endif()

option(TAVMOOR_PRECOMPILE "Read Qt's headers once for all layers of windows" ON)

# How code that includes Qt is compiled.
function(tavmoor_use_qt target)
    target_compile_definitions(${target} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
                                                QT_NO_CAST_TO_ASCII)
endfunction()

# Qt's headers, read once for all targets that are compiled alike. Sources still include all that
# they use: the lint preset compiles each on its own. What follows the name are compile options.
function(tavmoor_precompile_qt name)
    if(TAVMOOR_PRECOMPILE)
        file(WRITE ${CMAKE_BINARY_DIR}/${name}.cpp "// Only carries the precompiled headers.\n")
        add_library(${name} OBJECT ${CMAKE_BINARY_DIR}/${name}.cpp)
        target_link_libraries(${name} PRIVATE Qt6::Widgets)
        tavmoor_use_qt(${name})
        target_compile_options(${name} PRIVATE ${ARGN})
        target_precompile_headers(${name} PRIVATE <QtWidgets/QtWidgets> <map> <string> <vector>)
    endif()
endfunction()

function(tavmoor_use_precompiled_qt target name)
    if(TAVMOOR_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM ${name})
    endif()
endfunction()

if(TAVMOOR_WINDOWS_OF_PROGRAM)
    tavmoor_precompile_qt(tavmoor_qt_headers)
endif()

# What a target of windows has besides, with Qt's code generators.
function(tavmoor_make_windows target)
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON)
    tavmoor_use_qt(${target})
    target_link_libraries(${target} PUBLIC Qt6::Widgets)
    tavmoor_use_precompiled_qt(${target} tavmoor_qt_headers)
endfunction()

# A layer of windows without targets for its rooms.
function(tavmoor_window_layer name)
    tavmoor_layer(${name} ${ARGN})
    tavmoor_make_windows(tavmoor_${name})
endfunction()

# A room of a layer of windows, as in tavmoor_room. Without Qt only its PLAIN and WINDOWS sources,
# which include nothing of it, are compiled.
function(tavmoor_window_room layer room)
    cmake_parse_arguments(ROOM "" "" "SOURCES;PLAIN;POSIX;WINDOWS;ROOMS;DEPENDS;PRIVATE" ${ARGN})
    set(links ROOMS ${ROOM_ROOMS} DEPENDS ${ROOM_DEPENDS})
    if(TAVMOOR_WINDOWS_OF_PROGRAM)
        tavmoor_room(${layer} ${room} ${links} PRIVATE ${ROOM_PRIVATE}
                     SOURCES ${ROOM_SOURCES} ${ROOM_PLAIN}
                     POSIX ${ROOM_POSIX} WINDOWS ${ROOM_WINDOWS})
        tavmoor_make_windows(tavmoor_${layer}_${room})
    elseif(ROOM_PLAIN OR ROOM_WINDOWS)
        tavmoor_room(${layer} ${room} ${links} SOURCES ${ROOM_PLAIN} WINDOWS ${ROOM_WINDOWS})
    else()
        add_library(tavmoor_${layer}_${room} INTERFACE)
    endif()
endfunction()
