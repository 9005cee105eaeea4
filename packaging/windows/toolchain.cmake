# Debian's compiler for 64-bit Windows, with its thread library of the POSIX kind. The Qt for
# Windows, once there is one, is given as CORVANA_WINDOWS_QT.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_VERSION 10)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triplet x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triplet}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triplet}-g++-posix)
set(CMAKE_RC_COMPILER ${triplet}-windres)
set(CMAKE_AR /usr/bin/${triplet}-gcc-ar-posix CACHE FILEPATH "")
set(CMAKE_RANLIB /usr/bin/${triplet}-gcc-ranlib-posix CACHE FILEPATH "")

list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES CORVANA_WINDOWS_QT)
# The distribution's Qt, of the same version, brings what Qt runs on this machine meanwhile.
set(QT_HOST_PATH /usr)
set(QT_HOST_PATH_CMAKE_DIR /usr/lib/x86_64-linux-gnu/cmake)
set(CMAKE_FIND_ROOT_PATH ${CORVANA_WINDOWS_QT} /usr/${triplet})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Runs the tests.
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/under-wine)

# One file that brings everything but what Windows has.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
