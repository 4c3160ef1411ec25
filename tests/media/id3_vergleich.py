#!/usr/bin/env python3
# Unabhängiger Leser (mutagen): vergleicht die ID3v2-Rahmen zweier Dateien.
# Aufruf: id3_vergleich.py VORHER NACHHER [--ohne-tag] [--geaendert KENNUNG ...]
# Jeder Rahmen von VORHER muss in NACHHER mit gleichem Inhalt stehen, ausgenommen die
# geänderten Kennungen; mit --ohne-tag darf NACHHER keinen ID3v2-Tag mehr haben.
# Ausgabe: eine Zeile je Abweichung, zuletzt eine Zusammenfassung; Rückgabe 0, wenn alles stimmt.
import sys

from mutagen.id3 import ID3, ID3NoHeaderError


def rahmen(pfad):
    try:
        tag = ID3(pfad, load_v1=False)  # nur der ID3v2-Tag, ohne die Felder des ID3v1-Blocks
    except ID3NoHeaderError:
        return None
    return {schluessel: tag[schluessel] for schluessel in tag.keys()}


def main(argumente):
    vorher, nachher = argumente[0], argumente[1]
    ohne_tag = "--ohne-tag" in argumente
    geaendert = set()
    if "--geaendert" in argumente:
        geaendert = set(argumente[argumente.index("--geaendert") + 1:])
    fehler = []
    try:
        alt = rahmen(vorher)
        neu = rahmen(nachher)
    except Exception as e:  # ein Tag, den auch mutagen nicht lesen kann
        print("nicht lesbar: %s" % e)
        return 1
    if alt is None:
        fehler.append("VORHER hat keinen ID3v2-Tag")
        alt = {}
    if ohne_tag:
        if neu is not None:
            fehler.append("NACHHER hat noch einen ID3v2-Tag mit %d Rahmen" % len(neu))
    elif neu is None:
        fehler.append("NACHHER hat keinen ID3v2-Tag")
    else:
        for schluessel, r in alt.items():
            if schluessel.split(":")[0] in geaendert:
                continue
            if schluessel not in neu:
                fehler.append("fehlt: %s" % schluessel)
            elif neu[schluessel]._writeData() != r._writeData():
                fehler.append("anders: %s" % schluessel)
            elif hasattr(r, "data") and neu[schluessel].data != r.data:
                fehler.append("Bild anders: %s" % schluessel)
    for f in fehler:
        print(f)
    bilder = sum(len(r.data) for s, r in alt.items() if s.startswith("APIC"))
    print("%d Rahmen vorher, %d nachher, Bildbytes %d, %d Abweichungen" %
          (len(alt), len(neu or {}), bilder, len(fehler)))
    return 1 if fehler else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
