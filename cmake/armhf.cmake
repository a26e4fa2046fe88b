# 32-bit ARM; programs run under qemu-user.
set(triplet arm-linux-gnueabihf)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm -L /usr/arm-linux-gnueabihf)
include("${CMAKE_CURRENT_LIST_DIR}/crossLinux.cmake")
# Without notes on how older compilers passed arguments.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
