#!/usr/bin/env python3
# Legt die Startkorpora der Fuzz-Ziele an: je Ziel eine Handvoll Eingaben in echter Form.
# Aufruf: python3 fuzz/korpus/erzeugen.py (schreibt neben dieses Skript).
import os
import struct

HIER = os.path.dirname(os.path.abspath(__file__))


def schreiben(ziel, name, daten):
    os.makedirs(os.path.join(HIER, ziel), exist_ok=True)
    if isinstance(daten, str):
        daten = daten.encode("utf-8")
    with open(os.path.join(HIER, ziel, name), "wb") as f:
        f.write(daten)


def mpeg_frame(kopf=b"\xff\xfb\x90\x64", länge=417):
    return kopf + bytes(länge - 4)


def id3v1(titel=b"Lied", interpret=b"Band", album=b"Album", jahr=b"2001", kommentar=b"", track=None, genre=17):
    def feld(t, n):
        return t[:n].ljust(n, b"\0")
    if track is None:
        rest = feld(kommentar, 30)
    else:
        rest = feld(kommentar, 28) + b"\0" + bytes([track])
    return b"TAG" + feld(titel, 30) + feld(interpret, 30) + feld(album, 30) + feld(jahr, 4) + rest + bytes([genre])


def syncsafe(n):
    return bytes([(n >> 21) & 0x7F, (n >> 14) & 0x7F, (n >> 7) & 0x7F, n & 0x7F])


def rahmen(version, kennung, inhalt):
    if version == 2:
        return kennung[:3] + struct.pack(">I", len(inhalt))[1:] + inhalt
    größe = syncsafe(len(inhalt)) if version == 4 else struct.pack(">I", len(inhalt))
    return kennung + größe + b"\0\0" + inhalt


def id3v2(version, rahmenliste, flags=0, auffüllen=16):
    körper = b"".join(rahmen(version, k, i) for k, i in rahmenliste) + bytes(auffüllen)
    return b"ID3" + bytes([version, 0, flags]) + syncsafe(len(körper)) + körper


def index_korpus():
    größen = "#TAG:17/5/4//2/4/1/4/7//3/3/5/4/1/10/1/12/1/19|"
    werte = "/musik/Lied.mp3AlbumBand17Lied320013145728128196441007530016.11.20011Joint Stereo216.11.2001 20:15:00"
    schreiben("indexzeilen", "datensatz", "#TAG:kk102\r\n" + größen + werte + "\r\n")
    schreiben("indexzeilen", "optionen",
              "#TAG:kk102\r\n#OPT:SYNC=/musik/neu,1,/musik/ziel\r\n#OPT:SYNC_ENTFERNEN=12\r\n"
              "#OPT:VERWALTEN=ogg=1,110\r\n#OPT:SPALTEN=1=1400=1,2=0=0,3=1400=2\r\n#OPT:SPALTEN_LEISTE=1\r\n"
              "#OPT:SPALTEN_NUTZERFORMAT=%Titel% (%Jahr%)\r\n#OPT:UNBEKANNT=1\r\n")
    schreiben("indexzeilen", "umlaute", "#TAG:kk102\r\n#TAG:16/4|/musik/Lüge.mp3Wölf\r\n#TAG:9|/a/b\xc3.mp3\r\n")
    schreiben("indexzeilen", "kaputt", "#TAG:kk102\r\n#TAG:99999999999/-5/x|kurz\r\n#TAG:5\r\n#OPT:\r\n")
    for name in ("datensatz", "optionen", "umlaute", "kaputt"):
        with open(os.path.join(HIER, "indexzeilen", name), "rb") as f:
            schreiben("indexrundreise", name, f.read())


def medien_korpus():
    frame = mpeg_frame()
    schreiben("id3v1", "mit_track", frame * 2 + id3v1(track=7, kommentar=b"Sch\xf6n"))
    schreiben("id3v1", "ohne_track", frame + id3v1(kommentar=b"Ein langer Kommentar mit Text", genre=255))
    schreiben("id3v1", "nur_tag", id3v1(titel=b"Zeile\r\nzwei"))
    text = b"\0Lied"
    for v in (2, 3, 4):
        kennungen = [b"TT2", b"TP1", b"COM"] if v == 2 else [b"TIT2", b"TPE1", b"COMM"]
        liste = [(kennungen[0], text), (kennungen[1], b"\x01\xff\xfeB\0a\0n\0d\0"),
                 (kennungen[2], b"\0degBeschreibung\0Text")]
        if v != 2:
            liste += [(b"TRCK", b"\x037/12"), (b"TXXX", b"\0Name\0Wert"), (b"PCNT", b"\0\0\0\x05")]
        schreiben("id3v2", f"v2{v}", b"\0" + id3v2(v, liste) + frame)
        schreiben("id3v2schreiben", f"v2{v}", id3v2(v, liste, auffüllen=40) + frame * 2)
    schreiben("id3v2", "v24_fusszeile", b"\0" + id3v2(4, [(b"TIT2", text)], flags=0x10) + b"3DI\x04\0\x10" + syncsafe(20))
    schreiben("id3v2schreiben", "ohne_tag", frame * 2)
    schreiben("id3v2schreiben", "unsync", id3v2(3, [(b"TIT2", b"\0\xff\0Lied")], flags=0x80) + frame)
    schreiben("id3v2", "spaet", b"\x90" + bytes(300) + id3v2(3, [(b"TALB", b"\0Album")]))
    schreiben("mpeg", "cbr", frame * 3)
    xing = b"\xff\xfb\x90\x64" + bytes(32) + b"Xing" + struct.pack(">II", 15, 1000) + struct.pack(">I", 400000)
    schreiben("mpeg", "xing", xing + bytes(417 - len(xing)) + frame)
    schreiben("mpeg", "mpeg2", id3v2(3, []) + mpeg_frame(b"\xff\xf3\x64\xc4", 208) * 2)
    schreiben("mpeg", "falsch", b"\xff\xfa\xff\xff" + bytes(10) + b"\xff\xfb\x10\x00" + bytes(100))


def text_korpora():
    schreiben("playliste", "m3u", "#EXTM3U\r\n#EXTINF:215,Band - Lied\r\n/musik/Band - Lied.mp3\r\nunter/lied.mp3\r\n")
    schreiben("playliste", "pls", "[playlist]\nFile1=/musik/a.mp3\nTitle1=A\nNumberOfEntries=1\nVersion=2\n")
    schreiben("playliste", "latin1", b"/musik/L\xfcge.mp3\n../x.mp3\r\n")
    schreiben("autotag", "einfach", b"\x00/%Interpret% - %Titel%\0/musik/Band - Lied.mp3")
    schreiben("autotag", "album", b"\x01/%Interpret% - %Album% - %Titelnummer% - %Titel%\0/m/Band - Platte - 03 - Lied.mp3")
    schreiben("autotag", "automatik", b"\x02%Automatik%\0/musik/Band/Platte/03_Lied (live).mp3")
    schreiben("autotag", "ungerade", b"\x00/%Interpret - %Titel%\0/musik/a - b.mp3")
    schreiben("dateinamen", "umbenennen", "%Interpret% - %Titel%\0Lied")
    schreiben("dateinamen", "rekursiv", "%Titel% %Dauer% %Pfad%\0%Titel%")
    schreiben("dateinamen", "offen", "%Interpret% %\0x")
    schreiben("spalten", "vorgabe", "1=1400=1,2=0=0,3=1400=2,4=1400=3,19=900=4")
    schreiben("spalten", "kaputt", "x=1,31=5=5,=,5=-3=99999999999")
    schreiben("spalten", "leer", "0")
    schreiben("einstellungen", "typisch",
              "Start=z:3\nDateiname=t:/home/a/Klangkt.kkt\nWinampPfad=t:/usr/bin/audacious\n"
              "AutoTagFormat1=t:/%Interpret% - %Titel%\nMp3TagLesen=t:1\\n0\nAusschlussliste1=t:live\n")
    schreiben("einstellungen", "kaputt", "=t:x\n#Kommentar\nStart=z:99999999999\nStart=q:1\nA=t\r\nB=z:-7\r\n")


def internet_korpus():
    schreiben("internet", "typisch", "InetURLs100\r\n' Anmerkung\r\n\r\n#Wikipedia (deutsch)\r\n"
              "https://de.wikipedia.org/w/index.php?search=%Suche%\r\n#Discogs – Diskografien\r\n"
              "https://www.discogs.com/search/?q=%Suche%&type=all\r\n")
    schreiben("internet", "lf", "InetURLs100\n#Name\nhttps://a.example/?q=%Suche%\n#Ohne Adresse\n")
    schreiben("internet", "falsch", "InetURLs099\n#Name\n")


if __name__ == "__main__":
    index_korpus()
    medien_korpus()
    text_korpora()
    internet_korpus()
