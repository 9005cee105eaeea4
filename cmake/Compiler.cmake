# Warnings, hardening and sanitizers for the project's own targets.
add_library(corvana_compiler INTERFACE)

target_compile_definitions(corvana_compiler INTERFACE
  QT_NO_CAST_TO_ASCII
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
  QT_NO_FOREACH
  QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
  target_compile_options(corvana_compiler INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
    -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-align
    -Wformat=2 -Wnull-dereference -Wimplicit-fallthrough)
endif()

# What the distribution asks of its packages.
if(CMAKE_SYSTEM_NAME STREQUAL Linux AND CMAKE_BUILD_TYPE STREQUAL Release)
  target_compile_definitions(corvana_compiler INTERFACE _FORTIFY_SOURCE=2)
  target_compile_options(corvana_compiler INTERFACE -fstack-protector-strong)
  add_link_options(LINKER:-z,relro,-z,now)
endif()

if(CORVANA_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# A quick linker where there is one: there are some forty tests to link.
find_program(MOLD mold)
if(MOLD AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT CMAKE_CROSSCOMPILING)
  add_link_options(-fuse-ld=mold)
endif()
