# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# Debian's packages, through CPack: clipvane, the program with its window; clipvane-cli, the batch
# program; and libclipvane-core-dev, the logic for other programs. scripts/package makes them.
#
# Whoever builds a package answers for it, so the maintainer is named when it is built, by
# `cpack -D CPACK_PACKAGE_CONTACT="Name <address>"`; CPack refuses to go on without.

set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL cli core)
if(CLIPVANE_BUILD_WINDOW)
    list(PREPEND CPACK_COMPONENTS_ALL program)
endif()
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ
    GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/packaging/debian/finish.cmake)

# As vendors of packages that Debian does not have count: Debian's own first one is a newer -1.
set(CPACK_DEBIAN_PACKAGE_RELEASE 0clipvane1)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

# Each description below begins with its own summary.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME clipvane)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION video)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SHLIBDEPS ON)
# The fonts that the window is drawn for, and the toolkit's way to a Wayland desktop.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "fonts-inter, fonts-jetbrains-mono, qt6-wayland")
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
"inspector for the edit timelines of video-editing systems
Clipvane opens an EDL, an XMEML or an FCPXML file and shows every event
in a table, with clip name, reel, source and record timecodes, and beside
it the durations of the selected one. The file is never changed.
.
The list can be converted to another frame rate, commented and thinned
out, and exported as a CSV report and as a new EDL.")

set(CPACK_DEBIAN_CLI_PACKAGE_NAME clipvane-cli)
set(CPACK_DEBIAN_CLI_PACKAGE_SECTION video)
set(CPACK_DEBIAN_CLI_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_CLI_DESCRIPTION
"lists, converts, checks, stamps and compares edit timelines in scripts
Clipvane reads EDL, XMEML and FCPXML timelines, exactly to the frame. This
program for the command line prints their events as a table, CSV, TSV or
lines of JSON, writes them as EDLs, tells what is not read and what looks
wrong, writes into an EDL at which rate it counts, and tells what changed
between two cuts.
.
It needs no desktop.")

set(CPACK_DEBIAN_CORE_PACKAGE_NAME libclipvane-core-dev)
set(CPACK_DEBIAN_CORE_PACKAGE_SECTION libdevel)
# What ClipvaneConfig.cmake looks for; static libraries tell no dependencies themselves.
set(CPACK_DEBIAN_CORE_PACKAGE_DEPENDS
    "libexpat1-dev (>= 2.5), libexpected-dev, libicu-dev (>= 72)")
set(CPACK_DEBIAN_CORE_DESCRIPTION
"reading and writing of edit timelines (static libraries)
The logic of Clipvane, without its window: readers for EDL, XMEML and
FCPXML timelines, timecode and frame-rate arithmetic, and the writers of
the CSV report and of the edited EDL.
.
A program that is built with CMake gets it by find_package(Clipvane) and
the target Clipvane::core.")

include(CPack)
