# A layer is a static library whose headers are included as "<layer>/<header>.h". Each layer shows
# its own folder alone, through a link in the build tree, so that a header of a layer that is not
# linked cannot be included at all: the direction of dependence is enforced by the compiler.
function(tavmoor_layer name)
    cmake_parse_arguments(LAYER "" "" "SOURCES;DEPENDS" ${ARGN})
    add_library(tavmoor_${name} STATIC ${LAYER_SOURCES})
    set(shown ${CMAKE_BINARY_DIR}/layers/${name})
    file(MAKE_DIRECTORY ${shown})
    file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${shown}/${name} SYMBOLIC)
    target_include_directories(tavmoor_${name} PUBLIC ${shown})
    target_link_libraries(tavmoor_${name} PUBLIC ${LAYER_DEPENDS})
endfunction()

# Header-only libraries are the same for every target system; a cross build sees copies of just
# these folders and not the rest of the host's headers.
function(tavmoor_host_headers target)
    foreach(folder IN LISTS ARGN)
        file(COPY /usr/include/${folder} DESTINATION ${CMAKE_BINARY_DIR}/host-headers)
    endforeach()
    target_include_directories(${target} SYSTEM PRIVATE ${CMAKE_BINARY_DIR}/host-headers)
endfunction()
