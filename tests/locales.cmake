# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# The locales whose decimal mark (German) or letter case (Turkish) upsets careless code, made into
# the build folder: a system seldom has them installed. A test that needs them depends on the
# target test_locales and runs with LOCPATH=${CLIPVANE_TEST_LOCALES}.
set(CLIPVANE_TEST_LOCALES ${CMAKE_BINARY_DIR}/locales)

find_program(LOCALEDEF_EXECUTABLE localedef REQUIRED)
foreach(language de_DE tr_TR)
    if(NOT EXISTS /usr/share/i18n/locales/${language})
        message(FATAL_ERROR "The tests need the source of the locale ${language}, which Debian's "
                            "package 'locales' puts into /usr/share/i18n")
    endif()
    list(APPEND compile_locales COMMAND ${LOCALEDEF_EXECUTABLE} --quiet --no-archive
         -i ${language} -f UTF-8 ${CLIPVANE_TEST_LOCALES}/${language}.UTF-8)
    list(APPEND compiled_locales ${CLIPVANE_TEST_LOCALES}/${language}.UTF-8/LC_NUMERIC)
endforeach()

add_custom_command(
    OUTPUT ${compiled_locales}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${CLIPVANE_TEST_LOCALES}
    ${compile_locales}
    COMMENT "Making the locales of the tests"
    VERBATIM)
add_custom_target(test_locales DEPENDS ${compiled_locales})
