#!/usr/bin/env bash
# Baut das Debian-Paket aus einem fertigen Build (Vorgabe build/test) und prüft, dass es die
# erwarteten Dateien und Abhängigkeiten hat; mit lintian, wenn es installiert ist.
set -euo pipefail
cd "$(dirname "$0")/.."
bau=${1:-build/test}
ziel=$(mktemp -d)
trap 'rm -rf "$ziel"' EXIT
cpack -G DEB --config "$bau/CPackConfig.cmake" -B "$ziel" >"$ziel/cpack.log" 2>&1 || { cat "$ziel/cpack.log" >&2; exit 1; }
paket=$(ls "$ziel"/klangkartei_*.deb)
inhalt=$(dpkg-deb -c "$paket" | awk '{print $6}')
fehler=0
for datei in usr/bin/klangkartei usr/bin/klangkartei-cli \
             usr/share/klangkartei/Ineturl.dat usr/share/klangkartei/hilfe/index.htm \
             usr/share/applications/klangkartei.desktop usr/share/metainfo/klangkartei.metainfo.xml \
             usr/share/mime/packages/klangkartei.xml usr/share/icons/hicolor/scalable/apps/klangkartei.svg \
             usr/share/icons/hicolor/48x48/apps/klangkartei.png usr/share/man/man1/klangkartei-cli.1.gz \
             usr/share/doc/klangkartei/copyright usr/share/doc/klangkartei/changelog.Debian.gz; do
  grep -qx "\./$datei" <<<"$inhalt" || { echo "Im Paket fehlt: /$datei" >&2; fehler=1; }
done
abh=$(dpkg-deb -f "$paket" Depends)
for p in libqt6widgets6 libqt6dbus6 libutf8proc2 xdg-utils; do
  grep -q "$p" <<<"$abh" || { echo "Abhängigkeit fehlt: $p" >&2; fehler=1; }
done
if command -v lintian >/dev/null; then
  if ! bericht=$(lintian --fail-on error "$paket" 2>&1); then
    echo "lintian meldet Fehler" >&2
    fehler=1
  fi
  grep -v "root privileges" <<<"$bericht" || true
fi
[ "$fehler" -eq 0 ] && echo "Paket geprüft: $(basename "$paket")"
exit "$fehler"
