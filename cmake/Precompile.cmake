# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# The headers that most files include are read once a group of targets. The sources stay complete
# without: a plain configure, and clang-tidy, read each file by itself.
option(CLIPVANE_PRECOMPILE "Precompile the headers that most files include" OFF)

# A compiler cache does the same for a tree that was built before, and the two are in each other's way.
if(CMAKE_CXX_COMPILER_LAUNCHER)
    set(precompile OFF)
else()
    set(precompile ${CLIPVANE_PRECOMPILE})
endif()

# Gives `target` a precompiled header of the headers named. The first target of a group makes it, and the
# others, which are compiled with the same options, share it.
function(clipvane_precompile target group)
    get_property(maker GLOBAL PROPERTY clipvane_precompiled_${group})
    if(NOT precompile)
        return()
    elseif(maker)
        target_precompile_headers(${target} REUSE_FROM ${maker})
    else()
        target_precompile_headers(${target} PRIVATE ${ARGN})
        set_property(GLOBAL PROPERTY clipvane_precompiled_${group} ${target})
    endif()
endfunction()

# What most files of the logic include. Targets with options of their own take another group.
function(clipvane_precompile_logic target group)
    clipvane_precompile(${target} ${group} <algorithm> <array> <charconv> <cstdint> <filesystem>
                        <functional> <memory> <optional> <string> <string_view>
                        <tl/expected.hpp> <vector>)
endfunction()
