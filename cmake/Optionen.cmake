# Gemeinsame Übersetzer-Optionen aller Ziele.
add_library(kk_options INTERFACE)
target_compile_features(kk_options INTERFACE cxx_std_20)
target_compile_options(kk_options INTERFACE -Wall -Wextra -Wpedantic)
target_compile_definitions(kk_options INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
  QT_NO_CAST_FROM_BYTEARRAY QT_USE_QSTRINGBUILDER
  $<$<CONFIG:Debug>:KK_TRACE_AKTIV>)
if(KK_SANITIZE)
  target_compile_options(kk_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(kk_options INTERFACE -fsanitize=address,undefined)
endif()
if(KK_FUZZ)
  # Fuzz-Bau: alles mit Abdeckungszählern für libFuzzer; main kommt erst an die Ziele in fuzz/.
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "KK_FUZZ braucht clang (etwa CXX=clang++-14 oder das Preset fuzz)")
  endif()
  target_compile_options(kk_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(kk_options INTERFACE -fsanitize=address,undefined)
endif()
