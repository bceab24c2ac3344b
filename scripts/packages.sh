# Debian's packages, by what needs them. Sourced by the other scripts.

build_packages=(g++ cmake ninja-build pkgconf libicu-dev libexpat1-dev libexpected-dev
                nlohmann-json3-dev qt6-base-dev libgl-dev)
run_packages=(fonts-inter fonts-jetbrains-mono)
display_packages=(xvfb openbox xdotool x11-utils xclip imagemagick dbus at-spi2-core
                  python3-pyatspi)
test_packages=(clang libclang-rt-14-dev libgtest-dev libgmock-dev libbenchmark-dev locales
               "${display_packages[@]}")
