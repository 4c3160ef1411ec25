#!/usr/bin/env bash
# Baut die libFuzzer-Ziele (Preset fuzz, clang-14) und lässt jedes über seinem Startkorpus laufen.
#   fuzzen.sh [--sekunden N | --laeufe N] [--parallel N] [ZIEL...]
# Ohne Ziele laufen alle. Funde (Absturz, Hänger, Sanitizer-Bericht) liegen danach unter
# build/fuzz/funde/ZIEL/, das Protokoll unter build/fuzz/protokoll/ZIEL.txt; Rückgabe 1 bei einem Fund.
set -euo pipefail
cd "$(dirname "$0")/.."

grenze=(-max_total_time=5)
parallel=2
ziele=()
while [ $# -gt 0 ]; do
  case "$1" in
    --sekunden) grenze=(-max_total_time="$2"); shift 2 ;;
    --laeufe) grenze=(-runs="$2"); shift 2 ;;
    --parallel) parallel="$2"; shift 2 ;;
    *) ziele+=("$1"); shift ;;
  esac
done

if ! command -v clang++-14 >/dev/null || [ ! -e /usr/lib/llvm-14/lib/clang/14.0.6/lib/linux/libclang_rt.fuzzer-x86_64.a ]; then
  echo "Fuzzen übersprungen: clang-14 mit libFuzzer fehlt (Pakete clang-14 und libclang-rt-14-dev)."
  exit 0
fi

cmake --preset fuzz >/dev/null
nice cmake --build --preset fuzz
if [ ${#ziele[@]} -eq 0 ]; then
  for d in fuzz/korpus/*/; do ziele+=("$(basename "$d")"); done
fi

# Kleinere Quarantäne und kürzere Stapel: so schafft ein Ziel ein Vielfaches an Läufen.
export ASAN_OPTIONS=malloc_context_size=5:quarantine_size_mb=32:detect_leaks=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

einzeln() {
  local ziel="$1" arbeit="build/fuzz/korpus/$1" funde="build/fuzz/funde/$1"
  local laenge=4096
  case "$ziel" in autotag | dateinamen | spalten | einstellungen | playliste) laenge=1024 ;; esac
  mkdir -p "$arbeit" "$funde" build/fuzz/protokoll
  if nice -n 19 "build/fuzz/bin/fuzz_$ziel" "${grenze[@]}" -max_len="$laenge" -timeout=10 \
      -artifact_prefix="$funde/" -print_final_stats=1 "$arbeit" "fuzz/korpus/$ziel" \
      >"build/fuzz/protokoll/$ziel.txt" 2>&1; then
    echo "$ziel: $(grep -o 'stat::number_of_executed_units: [0-9]*' "build/fuzz/protokoll/$ziel.txt" | grep -o '[0-9]*$') Läufe ohne Fund"
  else
    echo "$ziel: FUND – siehe build/fuzz/protokoll/$ziel.txt und $funde/"
    grep -m3 -E 'ERROR|runtime error|SUMMARY' "build/fuzz/protokoll/$ziel.txt" || true
    return 1
  fi
}

fehler=0
laeufer=()
for ziel in "${ziele[@]}"; do
  einzeln "$ziel" &
  laeufer+=($!)
  if [ ${#laeufer[@]} -ge "$parallel" ]; then
    wait "${laeufer[0]}" || fehler=1
    laeufer=("${laeufer[@]:1}")
  fi
done
for p in "${laeufer[@]}"; do wait "$p" || fehler=1; done
exit $fehler
