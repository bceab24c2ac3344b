# Reads CHANGELOG.md's form, and refuses what is not of it.
cmake_minimum_required(VERSION 3.25)
include(${SOURCE_DIR}/cmake/Changelog.cmake)

if(FAULTY)
    read_changelog(${FAULTY} releases version date)  # has to fail
    return()
endif()

read_changelog(${CMAKE_CURRENT_LIST_DIR}/changelogs/usual.md releases version date)
set(expected [[
    <release version="1.10.0" date="2026-03-31">
      <description>
        <p>Added:</p>
        <ul>
          <li>an item that goes on in a second line &amp; in a third, with a &lt;tag&gt; and a link</li>
          <li>one more; with a semicolon</li>
        </ul>
        <p>Fixed:</p>
        <ul>
          <li>a fault</li>
        </ul>
      </description>
    </release>
    <release version="1.9.0" date="2025-12-01">
      <description>
        <p>Removed:</p>
        <ul>
          <li>the last item</li>
        </ul>
      </description>
    </release>
]])
if(NOT releases STREQUAL expected)
    message(FATAL_ERROR "The releases are\n${releases}instead of\n${expected}")
endif()
if(NOT "${version} ${date}" STREQUAL "1.10.0 2026-03-31")
    message(FATAL_ERROR "The newest release is ${version} of ${date}")
endif()
