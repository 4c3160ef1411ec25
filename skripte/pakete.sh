#!/usr/bin/env bash
# Installiert die Debian-Pakete, die Bau und Tests brauchen; nur, was noch fehlt.
set -euo pipefail
PAKETE=(build-essential cmake ninja-build ccache pkg-config git
        qt6-base-dev qt6-translations-l10n libgl-dev libutf8proc-dev libgtest-dev libgmock-dev libbenchmark-dev
        xvfb xauth dbus clang-format python3-mutagen clang-14 libclang-rt-14-dev
        audacious audacious-plugins)
fehlend=()
for p in "${PAKETE[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || fehlend+=("$p")
done
if [ ${#fehlend[@]} -gt 0 ]; then
  als_root=()
  [ "$(id -u)" -eq 0 ] || als_root=(sudo)
  echo "Installiere: ${fehlend[*]}"
  "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -q
  "${als_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${fehlend[@]}"
fi
