# SPDX-License-Identifier: GPL-3.0-or-later
# One interface target carries what every target of this project is compiled with.
add_library(quorvan_options INTERFACE)
target_compile_features(quorvan_options INTERFACE cxx_std_20)
target_include_directories(quorvan_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(quorvan_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(QUORVAN_WERROR)
  target_compile_options(quorvan_options INTERFACE -Werror)
endif()

# Hardening. The sanitizers bring checks of their own, which fortified functions would hide from them.
include(CheckPIESupported)
include(CheckCXXCompilerFlag)
check_pie_supported(LANGUAGES CXX)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(NOT QUORVAN_SANITIZE)
  target_compile_options(quorvan_options INTERFACE -fstack-protector-strong
    $<$<NOT:$<CONFIG:Debug>>:-U_FORTIFY_SOURCE> $<$<NOT:$<CONFIG:Debug>>:-D_FORTIFY_SOURCE=2>)
  check_cxx_compiler_flag(-fcf-protection=full HAS_CF_PROTECTION)
  if(HAS_CF_PROTECTION)
    target_compile_options(quorvan_options INTERFACE -fcf-protection=full)
  endif()
  target_link_options(quorvan_options INTERFACE -Wl,-z,relro,-z,now)
endif()

if(QUORVAN_SANITIZE)
  target_compile_definitions(quorvan_options INTERFACE QUORVAN_SANITIZED)
  target_compile_options(quorvan_options INTERFACE
    -fsanitize=${QUORVAN_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(quorvan_options INTERFACE -fsanitize=${QUORVAN_SANITIZE})
endif()
if(QUORVAN_FUZZING)
  target_compile_definitions(quorvan_options INTERFACE QUORVAN_FUZZING)
  target_compile_options(quorvan_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
