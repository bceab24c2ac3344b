# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# What Debian's policy adds to an installed tree: compressed manual pages and changelogs, and the
# licence under the name that Debian gives it. CPack runs this before it makes the packages.

# SOURCE_DATE_EPOCH if that is set.
string(TIMESTAMP now "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

find_program(GZIP gzip REQUIRED)
find_program(FIND find REQUIRED)
function(compress file)
    execute_process(COMMAND ${GZIP} --best --no-name ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} name)
    set(package ${CPACK_DEBIAN_${name}_PACKAGE_NAME})
    set(share ${CPACK_TEMPORARY_DIRECTORY}/${component}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
    set(documents ${share}/doc/${package})

    file(RENAME ${share}/doc/clipvane/LICENSE ${share}/doc/copyright)
    file(REMOVE_RECURSE ${share}/doc/clipvane)
    file(MAKE_DIRECTORY ${documents})
    file(RENAME ${share}/doc/copyright ${documents}/copyright)

    # Debian's zsh looks for others' completions there.
    if(EXISTS ${share}/zsh/site-functions)
        file(RENAME ${share}/zsh/site-functions ${share}/zsh/vendor-completions)
    endif()

    file(COPY_FILE ${CMAKE_CURRENT_LIST_DIR}/../../CHANGELOG.md ${documents}/changelog)
    file(WRITE ${documents}/changelog.Debian
"clipvane (${version}) unstable; urgency=medium

  * Package of Clipvane ${CPACK_PACKAGE_VERSION}.

 -- ${CPACK_PACKAGE_CONTACT}  ${now}
")
    file(GLOB documents ${documents}/changelog* ${share}/man/man*/*)
    foreach(document IN LISTS documents)
        compress(${document})
    endforeach()
endforeach()

# A file copied into the tree keeps the time of its checkout, and what was made here has today's.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND ${FIND} ${CPACK_TEMPORARY_DIRECTORY} -exec
                            touch --no-dereference --date=@$ENV{SOURCE_DATE_EPOCH} {} +
                    COMMAND_ERROR_IS_FATAL ANY)
endif()
