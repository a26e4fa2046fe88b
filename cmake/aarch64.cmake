# 64-bit ARM; programs run under qemu-user.
set(triplet aarch64-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64 -L /usr/aarch64-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/crossLinux.cmake")
