# 32-bit x86. The programs run as they are, as the kernel of any x86-64 Debian runs them; the libraries are the cross
# compiler's.
set(triplet i686-linux-gnu)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/i686-linux-gnu/lib/ld-linux.so.2 --library-path /usr/i686-linux-gnu/lib)
include("${CMAKE_CURRENT_LIST_DIR}/crossLinux.cmake")
