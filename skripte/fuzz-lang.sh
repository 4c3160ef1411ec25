#!/usr/bin/env bash
# Lange Fuzz-Läufe außerhalb der Tests: jedes Ziel 10.000.000 Läufe (oder so viele wie angegeben).
#   fuzz-lang.sh [--laeufe N] [--parallel N] [ZIEL...]
set -euo pipefail
exec bash "$(dirname "$0")/fuzzen.sh" --laeufe 10000000 --parallel 1 "$@"
