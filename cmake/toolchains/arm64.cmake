# Debian's cross compiler for arm64, with libraries out of the folder where ./test --portable unpacks them, and an emulator.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)

set(root "${CMAKE_CURRENT_LIST_DIR}/../../build/unpacked/arm64")
cmake_path(NORMAL_PATH root)
set(CMAKE_FIND_ROOT_PATH "${root}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# Debian's own compilers know this folder of their machine by themselves.
set(CMAKE_CXX_FLAGS_INIT "-isystem ${root}/usr/include/aarch64-linux-gnu")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,-rpath-link,${root}/usr/lib/aarch64-linux-gnu")
set(CMAKE_CROSSCOMPILING_EMULATOR "qemu-aarch64;-L;${root}")
