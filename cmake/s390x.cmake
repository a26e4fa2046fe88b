# IBM Z, which is big-endian; programs run under qemu-user.
set(triplet s390x-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR s390x)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-s390x -L /usr/s390x-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/crossLinux.cmake")
