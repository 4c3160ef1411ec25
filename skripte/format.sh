#!/usr/bin/env bash
# Prüft (ohne Argument) oder richtet (mit --anwenden) die Formatierung aller C++-Dateien nach .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
command -v clang-format >/dev/null || bash skripte/pakete.sh
mapfile -t dateien < <(git ls-files '*.cpp' '*.h')
if [ "${1:-}" = "--anwenden" ]; then
  clang-format -i "${dateien[@]}"
  exit 0
fi
falsch=0
for f in "${dateien[@]}"; do
  if ! clang-format "$f" | cmp -s "$f" -; then
    echo "Nicht formatiert: $f (bash skripte/format.sh --anwenden)" >&2
    falsch=1
  fi
done
exit $falsch
