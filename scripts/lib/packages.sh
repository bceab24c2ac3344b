# SPDX-FileCopyrightText: 2026 The Clipvane developers
# SPDX-License-Identifier: MIT

# Debian's packages, by what needs them. Sourced by scripts/setup.

build_packages=(g++ cmake ninja-build pkgconf libicu-dev libexpat1-dev libexpected-dev
                nlohmann-json3-dev libcli11-dev qt6-base-dev libgl-dev)
# The toolkit's way to a Wayland desktop is a package of its own.
run_packages=(fonts-inter fonts-jetbrains-mono qt6-wayland)
display_packages=(xvfb openbox xdotool x11-utils xclip imagemagick dbus at-spi2-core
                  python3-pyatspi)
packaging_packages=(dpkg-dev file gzip lintian)
validator_packages=(appstream desktop-file-utils librsvg2-bin man-db reuse
                    "${packaging_packages[@]}")
test_packages=(jq clang clang-format clang-tidy lld libclang-rt-14-dev llvm-14 libgtest-dev libgmock-dev libbenchmark-dev locales strace
               valgrind weston "${display_packages[@]}" "${validator_packages[@]}")
coverage_packages=(gcovr)
