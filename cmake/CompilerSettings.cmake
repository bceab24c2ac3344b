# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# Settings that the presets switch on; a plain configure gets none of them, so that a packager's
# own flags decide.

option(CLIPVANE_WARNINGS "Compile with the developers' warnings" OFF)
option(CLIPVANE_HARDENED "Compile and link with the usual hardening" OFF)
set(CLIPVANE_SANITIZERS "" CACHE STRING "Comma-separated sanitizers, handed to -fsanitize=")

set(CLIPVANE_LINKER "" CACHE STRING "Linker, handed to -fuse-ld=, or empty for the compiler's own")

if(CLIPVANE_LINKER)
    add_link_options(-fuse-ld=${CLIPVANE_LINKER})
endif()

if(CLIPVANE_WARNINGS)
    # A constructor's parameter may have its member's name, which GCC's plain -Wshadow refuses.
    add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion
                        -Wnon-virtual-dtor -Woverloaded-virtual
                        $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow>)
    # GCC 12 suspects overlaps inside std::string's own operator+.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
endif()

if(CLIPVANE_HARDENED)
    # tests/trust/hardening looks for these in what was built.
    add_compile_options(-fstack-protector-strong -fstack-clash-protection -U_FORTIFY_SOURCE
                        -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

if(CLIPVANE_SANITIZERS)
    add_compile_options(-fsanitize=${CLIPVANE_SANITIZERS} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${CLIPVANE_SANITIZERS})
endif()
