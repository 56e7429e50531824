# Qt is there for the native build; Debian has none for the cross compiler, so the Windows build
# makes everything but the windows. What is plain C++ below them is compiled for both.
if(WIN32 OR TAVMOOR_FUZZ)
    set(TAVMOOR_WINDOWS_OF_PROGRAM OFF)
    message(STATUS "No Qt for this target: the program with windows is left out")
else()
    find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets Multimedia PrintSupport Svg)
    set(TAVMOOR_WINDOWS_OF_PROGRAM ON)
endif()

option(TAVMOOR_PRECOMPILE "Read Qt's headers once for all sources of a target" ON)

# Sources still include all that they use: the lint preset compiles each on its own.
function(tavmoor_precompile_qt target)
    if(TAVMOOR_PRECOMPILE)
        target_precompile_headers(${target} PRIVATE <QtWidgets/QtWidgets> <map> <string> <vector>)
    endif()
endfunction()

# A layer of windows: what tavmoor_layer does, with Qt's code generators.
function(tavmoor_window_layer name)
    tavmoor_layer(${name} ${ARGN})
    set_target_properties(tavmoor_${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_compile_definitions(tavmoor_${name} PUBLIC QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII
                                                      QT_NO_CAST_TO_ASCII)
    target_link_libraries(tavmoor_${name} PUBLIC Qt6::Widgets)
    tavmoor_precompile_qt(tavmoor_${name})
endfunction()
