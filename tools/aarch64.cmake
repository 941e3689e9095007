# SPDX-License-Identifier: GPL-3.0-or-later
# Builds for 64-bit ARM on another processor, with Debian's packages for that, and lets an emulator run
# what was built: cmake -DCMAKE_TOOLCHAIN_FILE=tools/aarch64.cmake
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64)
