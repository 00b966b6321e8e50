# SPDX-License-Identifier: GPL-3.0-or-later
# Debian's own clang and libc++ for a page in a browser. Both supported releases have this version.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_CXX_FLAGS_INIT "-stdlib=libc++ -isystem /usr/include/wasm32-wasi/c++/v1 -isystem /usr/include/wasm32-wasi -fno-exceptions -fno-rtti -ffunction-sections -fdata-sections")
