# Clang with libc++, the standard library of the phones' toolchains, out of the folder where ./test --portable unpacks it.
set(libcxx "${CMAKE_CURRENT_LIST_DIR}/../../build/unpacked/libc++/usr/lib/llvm-19")
cmake_path(NORMAL_PATH libcxx)

# GoogleTest asks for C too.
set(CMAKE_C_COMPILER clang-19)
set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc++ -isystem ${libcxx}/include/c++/v1")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-stdlib=libc++ -L${libcxx}/lib -Wl,-rpath,${libcxx}/lib")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${CMAKE_EXE_LINKER_FLAGS_INIT}")
