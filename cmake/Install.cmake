# SPDX-License-Identifier: GPL-3.0-or-later
# Where `cmake --install` puts things. The program finds the rest from its own folder, so these places go together.
include(GNUInstallDirs)

option(SOLLEVINO_PORTABLE "Install one folder that is run in place, from anywhere" OFF)
set(SOLLEVINO_BINDIR bin CACHE STRING "The program's folder below the prefix; games where a system keeps games apart")

if(SOLLEVINO_PORTABLE)
  set(program_dir .)
  set(library_dir .)
  set(data_dir .)
  add_compile_options("-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")  # the same bytes from any folder
else()
  if(SOLLEVINO_BINDIR MATCHES "/")
    message(FATAL_ERROR "SOLLEVINO_BINDIR is a folder right below the prefix, as bin or games")
  endif()
  set(program_dir ${SOLLEVINO_BINDIR})
  set(library_dir lib/sollevinodue)
  set(data_dir share/games/sollevinodue)
endif()
