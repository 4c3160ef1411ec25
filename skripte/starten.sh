#!/usr/bin/env bash
# Einrichten, bauen und das Programm (das Fenster, auf dem Standard-Index) starten.
set -euo pipefail
cd "$(dirname "$0")/.."
bash skripte/pakete.sh
cmake --preset start >/dev/null
cmake --build --preset start
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  cat >&2 <<'TEXT'
Keine Anzeige gefunden (weder DISPLAY noch WAYLAND_DISPLAY gesetzt).
Das Fenster läuft auch in einer virtuellen Anzeige:
    xvfb-run -a build/start/bin/klangkartei
Ohne Fenster hilft die Kommandozeile:
    build/start/bin/klangkartei-cli --help
TEXT
  exit 1
fi
exec build/start/bin/klangkartei "$@"
