# SPDX-License-Identifier: GPL-3.0-or-later
# How every target of the project is compiled: target_link_libraries(NAME PRIVATE sollevinodue_options).
add_library(sollevinodue_options INTERFACE)

target_compile_options(sollevinodue_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wcast-qual -Wimplicit-fallthrough -Wsuggest-override
  $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op -Wnull-dereference>
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)  # g++ 12 warns of its own std::string
if(SOLLEVINO_WARNINGS_ARE_ERRORS)
  target_compile_options(sollevinodue_options INTERFACE -Werror)
endif()
if(SOLLEVINO_CHECKED)
  target_compile_definitions(sollevinodue_options INTERFACE SOLLEVINO_CHECKED _GLIBCXX_ASSERTIONS)
endif()
if(SOLLEVINO_SANITIZE)
  target_compile_options(sollevinodue_options INTERFACE
    -fsanitize=${SOLLEVINO_SANITIZE} -fno-sanitize-recover=undefined -fno-omit-frame-pointer
    $<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=function>)  # clang 14 cannot place it in coroutines
  target_link_options(sollevinodue_options INTERFACE -fsanitize=${SOLLEVINO_SANITIZE})
endif()

# The names of the game stand in shadow-free code; Qt's headers do not allow the warning in the window.
add_library(sollevinodue_strict INTERFACE)
target_link_libraries(sollevinodue_strict INTERFACE sollevinodue_options)
target_compile_options(sollevinodue_strict INTERFACE -Wshadow)
