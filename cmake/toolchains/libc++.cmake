# clang++ with its own standard library.
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_CXX_FLAGS_INIT -stdlib=libc++)

# The one that is installed is for the other standard library.
set(CMAKE_DISABLE_FIND_PACKAGE_GTest ON)
