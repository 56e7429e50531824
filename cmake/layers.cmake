# Layers and their rooms. Each is a static library whose headers are included by their folder,
# "<layer>/<header>.h" or "<layer>/<room>/<header>.h". It shows its own folder alone, through a link
# in the build tree, so that a header of a layer or room that is not linked cannot be included at
# all: the direction of dependence is enforced by the compiler.

# Shows the current folder, or one below it, as `place` in the include path of the target.
function(tavmoor_show target place folder)
    string(REPLACE "/" "_" link_tree ${place})
    set(shown ${CMAKE_BINARY_DIR}/layers/${link_tree})
    cmake_path(GET place PARENT_PATH parent)
    file(MAKE_DIRECTORY ${shown}/${parent})
    file(CREATE_LINK ${folder} ${shown}/${place} SYMBOLIC)
    target_include_directories(${target} PUBLIC ${shown})
endfunction()

# A layer without rooms.
function(tavmoor_layer name)
    cmake_parse_arguments(LAYER "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(tavmoor_${name} STATIC ${LAYER_SOURCES})
    tavmoor_show(tavmoor_${name} ${name} ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(tavmoor_${name} PUBLIC ${LAYER_DEPENDS})
endfunction()

# A room: a folder of a layer, built as tavmoor_<layer>_<room>. It sees the rooms of the same layer
# (ROOMS) and the other targets (DEPENDS, or PRIVATE for its sources alone) that it names. POSIX and
# WINDOWS sources belong to these systems. The sum of the layer, tavmoor_<layer>, links every room.
function(tavmoor_room layer room)
    cmake_parse_arguments(ROOM "" "" "SOURCES;POSIX;WINDOWS;ROOMS;DEPENDS;PRIVATE" ${ARGN})
    if(WIN32)
        list(APPEND ROOM_SOURCES ${ROOM_WINDOWS})
    else()
        list(APPEND ROOM_SOURCES ${ROOM_POSIX})
    endif()
    list(TRANSFORM ROOM_SOURCES PREPEND ${room}/)
    list(TRANSFORM ROOM_ROOMS PREPEND tavmoor_${layer}_)
    set(target tavmoor_${layer}_${room})
    add_library(${target} STATIC ${ROOM_SOURCES})
    tavmoor_show(${target} ${layer}/${room} ${CMAKE_CURRENT_SOURCE_DIR}/${room})
    target_link_libraries(${target} PUBLIC ${ROOM_ROOMS} ${ROOM_DEPENDS} PRIVATE ${ROOM_PRIVATE})
    if(NOT TARGET tavmoor_${layer})
        add_library(tavmoor_${layer} INTERFACE)
    endif()
    target_link_libraries(tavmoor_${layer} INTERFACE ${target})
endfunction()

# Header-only libraries are the same for every target system; a cross build sees copies of just
# these folders and not the rest of the host's headers.
function(tavmoor_host_headers target)
    foreach(folder IN LISTS ARGN)
        file(COPY /usr/include/${folder} DESTINATION ${CMAKE_BINARY_DIR}/host-headers)
    endforeach()
    target_include_directories(${target} SYSTEM PRIVATE ${CMAKE_BINARY_DIR}/host-headers)
endfunction()
