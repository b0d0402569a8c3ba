# SPDX-License-Identifier: GPL-3.0-or-later
# What every target is compiled with. ccache is used where it is installed; it must be told that a
# precompiled header may be reused although its time stamp differs.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC OFF)
if(NOT CMAKE_BUILD_TYPE)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "" FORCE)
endif()

find_program(TESSALY_CCACHE ccache)
find_program(TESSALY_ENV env)
if(TESSALY_CCACHE AND TESSALY_ENV)
    set(TESSALY_LAUNCHER ${TESSALY_ENV}
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1 ${TESSALY_CCACHE})
    set(CMAKE_C_COMPILER_LAUNCHER ${TESSALY_LAUNCHER})
    set(CMAKE_CXX_COMPILER_LAUNCHER ${TESSALY_LAUNCHER})
endif()

add_library(tessaly_options INTERFACE)
target_compile_definitions(tessaly_options INTERFACE
    QT_DISABLE_DEPRECATED_BEFORE=0x060200 QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH)
target_compile_options(tessaly_options INTERFACE -Wall -Wextra -Wpedantic -Wshadow=local -Wnon-virtual-dtor
    -Woverloaded-virtual -Wcast-qual -Wno-missing-field-initializers -fpch-preprocess)
if(TESSALY_WERROR)
    target_compile_options(tessaly_options INTERFACE -Werror)
endif()
if(TESSALY_SANITIZE)
    # Access through a null pointer ends in a report of the address sanitizer, too: checking every pointer besides would
    # only make compiling longer.
    target_compile_options(tessaly_options INTERFACE -fsanitize=address,undefined -fno-sanitize=null
        -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(tessaly_options INTERFACE -fsanitize=address,undefined)
    # Many programs with much debug information are linked: lld takes a third of the time of the usual linker.
    find_program(TESSALY_LLD ld.lld)
    if(TESSALY_LLD)
        target_link_options(tessaly_options INTERFACE -fuse-ld=lld)
    endif()
endif()
