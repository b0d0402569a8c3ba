# SPDX-License-Identifier: GPL-3.0-or-later
# The code of the Wayland protocols that Tessaly speaks, made by wayland-scanner: the target tessaly_wayland_protocols.
#
# The descriptions of the wlr protocols are taken from a system that has them, or else from the Debian package that
# carries them, which is unpacked in the build folder and not installed. Where neither works TESSALY_WAYLAND_EXTRAS is
# off, and what needs them is compiled as "not offered". ext-image-copy-capture-v1, which will replace wlr-screencopy,
# is described by no package of Debian 12; its file would stand in the list of `standard` below.

pkg_check_modules(WAYLAND REQUIRED IMPORTED_TARGET GLOBAL wayland-client)
pkg_get_variable(wayland_scanner wayland-scanner wayland_scanner)
pkg_get_variable(wayland_protocols wayland-protocols pkgdatadir)

# Sets RESULT to the folder of the wlr descriptions, or to nothing.
function(tessaly_find_wlr_protocols RESULT)
    set(package librust-wayland-protocols-dev)
    set(unpacked "${CMAKE_BINARY_DIR}/wlr-protocols")
    set(inside share/cargo/registry/wayland-protocols-*/wlr-protocols)
    foreach(attempt IN ITEMS present fetched)
        file(GLOB found /usr/share/wlr-protocols/unstable /usr/${inside}/unstable
            "${unpacked}/usr/${inside}/unstable")
        foreach(folder IN LISTS found)
            if(EXISTS "${folder}/wlr-screencopy-unstable-v1.xml" AND EXISTS "${folder}/wlr-virtual-pointer-unstable-v1.xml")
                set(${RESULT} "${folder}" PARENT_SCOPE)
                return()
            endif()
        endforeach()
        find_program(TESSALY_APT_GET apt-get)
        if(attempt STREQUAL "fetched" OR NOT TESSALY_APT_GET)
            break()
        endif()
        file(REMOVE_RECURSE "${unpacked}")
        file(MAKE_DIRECTORY "${unpacked}")
        execute_process(COMMAND "${TESSALY_APT_GET}" -q download ${package} WORKING_DIRECTORY "${unpacked}"
            TIMEOUT 120 OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE status)
        file(GLOB archive "${unpacked}/${package}_*.deb")
        if(status EQUAL 0 AND archive)
            execute_process(COMMAND dpkg -x "${archive}" "${unpacked}" OUTPUT_QUIET ERROR_QUIET)
            file(REMOVE "${archive}")
        endif()
    endforeach()
    set(${RESULT} "" PARENT_SCOPE)
endfunction()

# Adds the code of one description to the target.
function(tessaly_add_protocol TARGET XML)
    get_filename_component(name "${XML}" NAME_WE)
    set(stem "${CMAKE_BINARY_DIR}/wayland-code/${name}")
    add_custom_command(OUTPUT "${stem}.c" COMMAND "${wayland_scanner}" private-code "${XML}" "${stem}.c"
        DEPENDS "${XML}" VERBATIM)
    add_custom_command(OUTPUT "${stem}.h" COMMAND "${wayland_scanner}" client-header "${XML}" "${stem}.h"
        DEPENDS "${XML}" VERBATIM)
    target_sources(${TARGET} PRIVATE "${stem}.c" "${stem}.h")
endfunction()

tessaly_find_wlr_protocols(wlr_protocols)
set(standard
    "${wayland_protocols}/stable/viewporter/viewporter.xml"
    "${wayland_protocols}/stable/xdg-shell/xdg-shell.xml"
    "${wayland_protocols}/unstable/xdg-output/xdg-output-unstable-v1.xml")
file(MAKE_DIRECTORY "${CMAKE_BINARY_DIR}/wayland-code")
add_library(tessaly_wayland_protocols STATIC)
target_include_directories(tessaly_wayland_protocols SYSTEM INTERFACE "${CMAKE_BINARY_DIR}/wayland-code")
target_link_libraries(tessaly_wayland_protocols PUBLIC PkgConfig::WAYLAND)
foreach(xml IN LISTS standard)
    tessaly_add_protocol(tessaly_wayland_protocols "${xml}")
endforeach()
if(wlr_protocols)
    set(TESSALY_WAYLAND_EXTRAS ON)
    foreach(name IN ITEMS screencopy layer-shell data-control virtual-pointer)
        tessaly_add_protocol(tessaly_wayland_protocols "${wlr_protocols}/wlr-${name}-unstable-v1.xml")
    endforeach()
    message(STATUS "Wayland: capture, layers and clipboard by the wlr protocols of ${wlr_protocols}")
else()
    set(TESSALY_WAYLAND_EXTRAS OFF)
    message(STATUS "Wayland: the wlr protocols were not found and could not be fetched (apt-get download "
        "librust-wayland-protocols-dev). Capture by the compositor, windows above others and the clipboard without a "
        "focused window are left out; the portal is used instead.")
endif()
