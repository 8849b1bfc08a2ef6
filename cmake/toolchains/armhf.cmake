# Debian's cross compiler for armhf, with libraries out of the folder where ./test --portable unpacks them, and an emulator.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)

set(root "${CMAKE_CURRENT_LIST_DIR}/../../build/unpacked/armhf")
cmake_path(NORMAL_PATH root)
set(CMAKE_FIND_ROOT_PATH "${root}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Debian's own compilers know this folder of their machine by themselves.
set(CMAKE_CXX_FLAGS_INIT "-isystem ${root}/usr/include/arm-linux-gnueabihf")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-rpath-link,${root}/usr/lib/arm-linux-gnueabihf")
set(CMAKE_CROSSCOMPILING_EMULATOR "qemu-arm;-L;${root}")
