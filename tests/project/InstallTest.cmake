# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# Installs everything into a folder of the test's own: each file has its place, the names by which a
# desktop finds the program agree, and the version is one.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}
                OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

file(GLOB_RECURSE files RELATIVE ${WORK_DIR} ${WORK_DIR}/*)
list(FILTER files EXCLUDE REGEX "^(include/clipvane|lib.*/cmake/Clipvane)/")
list(TRANSFORM files REPLACE "^lib/.*/" "lib/")
set(expected
    bin/clipvane
    bin/clipvane-cli
    lib/libclipvane_base.a
    lib/libclipvane_commands.a
    lib/libclipvane_import.a
    lib/libclipvane_model.a
    lib/libclipvane_timecode.a
    share/applications/clipvane.desktop
    share/bash-completion/completions/clipvane-cli
    share/doc/clipvane-cli/diff.md
    share/doc/clipvane-cli/recipes.md
    share/doc/clipvane/LICENSE
    share/icons/hicolor/16x16/apps/clipvane.png
    share/icons/hicolor/24x24/apps/clipvane.png
    share/icons/hicolor/32x32/apps/clipvane.png
    share/icons/hicolor/48x48/apps/clipvane.png
    share/icons/hicolor/scalable/apps/clipvane.svg
    share/man/man1/clipvane-cli.1
    share/man/man1/clipvane.1
    share/metainfo/clipvane-cli.metainfo.xml
    share/metainfo/clipvane.metainfo.xml
    share/zsh/site-functions/_clipvane-cli)
if(NOT files STREQUAL expected)
    list(JOIN files "\n" files)
    message(FATAL_ERROR "Installed were\n${files}")
endif()

# The file holds the text, once.
function(expect_in file text)
    file(READ ${WORK_DIR}/share/${file} content)
    string(FIND "${content}" "${text}" first)
    string(FIND "${content}" "${text}" last REVERSE)
    if(first EQUAL -1 OR NOT first EQUAL last)
        message(FATAL_ERROR "${file} does not hold, once: ${text}")
    endif()
endfunction()

set(entry applications/clipvane.desktop)
set(metainfo metainfo/clipvane.metainfo.xml)
expect_in(${entry} "\nExec=clipvane\n")
expect_in(${entry} "\nIcon=clipvane\n")
expect_in(${metainfo} "<id>clipvane</id>")
expect_in(${metainfo} "<launchable type=\"desktop-id\">clipvane.desktop</launchable>")

file(READ ${SOURCE_DIR}/CHANGELOG.md changelog)
if(NOT changelog MATCHES "\n## \\[${VERSION}\\] - ([-0-9]+)\n")
    message(FATAL_ERROR "CHANGELOG.md has no release ${VERSION}")
endif()
set(batch_metainfo metainfo/clipvane-cli.metainfo.xml)
expect_in(${batch_metainfo} "<id>invalid.clipvane.cli</id>")
expect_in(${batch_metainfo} "<binary>clipvane-cli</binary>")
expect_in(${batch_metainfo} "<release version=\"${VERSION}\" date=\"${CMAKE_MATCH_1}\"/>")
expect_in(man/man1/clipvane-cli.1
          ".TH CLIPVANE\\-CLI 1 ${CMAKE_MATCH_1} \"Clipvane ${VERSION}\" ")
expect_in(${metainfo} "<release version=\"${VERSION}\" date=\"${CMAKE_MATCH_1}\"/>")
expect_in(man/man1/clipvane.1 ".TH CLIPVANE 1 ${CMAKE_MATCH_1} \"Clipvane ${VERSION}\" ")
