# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target carries what every target of this project is compiled with.
add_library(quorvan_options INTERFACE)
target_compile_features(quorvan_options INTERFACE cxx_std_20)
target_include_directories(quorvan_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quorvan_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(QUORVAN_WERROR)
  target_compile_options(quorvan_options INTERFACE -Werror)
endif()
if(QUORVAN_SANITIZE)
  target_compile_options(quorvan_options INTERFACE
    -fsanitize=${QUORVAN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quorvan_options INTERFACE -fsanitize=${QUORVAN_SANITIZE})
endif()
if(QUORVAN_FUZZING)
  target_compile_definitions(quorvan_options INTERFACE QUORVAN_FUZZING)
  target_compile_options(quorvan_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
