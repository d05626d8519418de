# Builds for 32-bit x86 Linux, of processors with SSE2, with Debian's g++-multilib. What is built runs here as it is.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER gcc)
set(CMAKE_CXX_COMPILER g++)
foreach(language C CXX)
  set(CMAKE_${language}_FLAGS_INIT "-m32 -msse2 -mfpmath=sse")
endforeach()
