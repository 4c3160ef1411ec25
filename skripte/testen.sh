#!/usr/bin/env bash
# Einrichten, bauen (mit AddressSanitizer und UndefinedBehaviorSanitizer) und alle Tests laufen lassen.
set -euo pipefail
cd "$(dirname "$0")/.."
bash skripte/pakete.sh
cmake --preset test >/dev/null
cmake --build --preset test
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=0
ctest --preset test -j2
bash skripte/paketpruefung.sh build/test
# Jeder Parser kurz unter libFuzzer; die langen Läufe macht skripte/fuzz-lang.sh.
bash skripte/fuzzen.sh --sekunden 5
