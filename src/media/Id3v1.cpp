#include "media/Id3v1.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "media/DateiLeser.h"
#include "media/Genres.h"
#include "media/MedienInfos.h"
#include "media/TagDatei.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

std::string Mp3tagLesenStr(DateiLeser& datei) {
    if (!datei.Offen() || datei.Länge() < 128) return {};
    std::string_view block = datei.Stück(datei.Länge() - 128, 128);
    if (block.size() != 128 || block.substr(0, 3) != "TAG") return {};
    return std::string(block);
}

std::string Mp3tagLesenStr(const std::string& dateiname) {
    DateiLeser datei(dateiname);
    return Mp3tagLesenStr(datei);
}

std::string TagTextBereinigen(std::string_view text, bool zeilenumbrücheLassen) {
    std::string aus;
    aus.reserve(text.size());
    for (char c : text) {
        if (c == '\0' || c == '\x01') continue;
        if (!zeilenumbrücheLassen && (c == '\n' || c == '\r')) continue;
        aus.push_back(c);
    }
    while (!aus.empty() && aus.back() == ' ') aus.pop_back();
    return aus;
}

namespace {
// Ein Feld des Blocks (Positionen ab 1), bereinigt und nach UTF-8 gewandelt.
std::string Feld(const std::string& tag, int32_t pos, int32_t länge) {
    return Windows1252ZuUtf8(TagTextBereinigen(Mid(tag, pos, länge), false));
}
}  // namespace

void Id3v1FelderAufteilen(const std::string& tag, DateiInfo& info, bool zeilenumbrücheLassen) {
    if (tag.empty()) {
        for (auto* feld :
             {&info.Mp3_ID3v1_TAG, &info.Mp3_ID3v1_Titel, &info.Mp3_ID3v1_Interpret, &info.Mp3_ID3v1_Album,
              &info.Mp3_ID3v1_Jahr, &info.Mp3_ID3v1_Kommentar, &info.Mp3_ID3v1_Track, &info.Mp3_ID3v1_Genre})
            feld->clear();
        info.Mp3_ID3v1_Status = 2;
        return;
    }
    info.Mp3_ID3v1_TAG = Mid(tag, 1, 3);
    info.Mp3_ID3v1_Titel = Feld(tag, 4, 30);
    info.Mp3_ID3v1_Interpret = Feld(tag, 34, 30);
    info.Mp3_ID3v1_Album = Feld(tag, 64, 30);
    info.Mp3_ID3v1_Jahr = Feld(tag, 94, 4);

    // Die Breiten zählen Bytes im Block: erst vergleichen und anhängen, dann wandeln.
    std::string kommentar = TagTextBereinigen(Mid(tag, 98, 28), zeilenumbrücheLassen);
    const std::string paar = Mid(tag, 126, 2);
    if (paar.size() == 2 && paar[0] == '\0') {
        const auto c = static_cast<unsigned char>(paar[1]);
        info.Mp3_ID3v1_Track = c > 0 ? std::to_string(c) : "";
    } else if (kommentar.size() == 28) {
        kommentar += TagTextBereinigen(paar, zeilenumbrücheLassen);
    }
    info.Mp3_ID3v1_Kommentar = Windows1252ZuUtf8(kommentar);

    info.Mp3_ID3v1_Genre = Mid(tag, 128, 1);
    // Geprüft wird gegen 145: Code 144 gilt noch, 145 nicht mehr.
    if (!info.Mp3_ID3v1_Genre.empty() && static_cast<unsigned char>(info.Mp3_ID3v1_Genre[0]) >= 145)
        info.Mp3_ID3v1_Genre = "\xFF";
    info.Mp3_ID3v1_Status = 1;
}

Id3v1Felder Id3v1FelderAusDatensatz(const DateiInfo& info) {
    Id3v1Felder f;
    f.titel = info.Mp3_ID3v1_Titel;
    f.interpret = info.Mp3_ID3v1_Interpret;
    f.album = info.Mp3_ID3v1_Album;
    f.jahr = info.Mp3_ID3v1_Jahr;
    f.kommentar = info.Mp3_ID3v1_Kommentar;
    f.titelnummer = info.Mp3_ID3v1_Track;
    if (!info.Mp3_ID3v1_Genre.empty()) {
        const int32_t code = static_cast<unsigned char>(info.Mp3_ID3v1_Genre[0]);
        if (code < GenreAnzahl()) f.genreAuswahl = code + 1;
    }
    return f;
}

namespace {
// Linksbündig, auf die Breite gekürzt und mit Leerzeichen aufgefüllt (Bytes in Windows-1252).
std::string Breite(const std::string& text, size_t breite) {
    std::string w = Utf8ZuWindows1252(text);
    w.resize(breite, ' ');
    return w;
}

std::string TitelnummerPaar(const std::string& text) {
    std::string paar(2, '\0');
    if (text.empty() || !IstNumerisch(text)) return paar;
    const double wert = *ZahlWert(text);
    if (wert < 0 || wert > 255) return paar;
    paar[1] = static_cast<char>(static_cast<unsigned char>(RundenGerade(wert)));
    return paar;
}
}  // namespace

std::string TAGAusFeldernZusammensetzen(const Id3v1Felder& f) {
    std::string tag(128, ' ');
    tag.replace(0, 3, Breite(f.tag, 3));
    tag.replace(3, 30, Breite(f.titel, 30));
    tag.replace(33, 30, Breite(f.interpret, 30));
    tag.replace(63, 30, Breite(f.album, 30));
    tag.replace(93, 4, Breite(f.jahr, 4));
    // Mit NUL auf 30 aufgefüllt, dann auf 28 gekürzt: die Zeichen 29 und 30 gehen verloren.
    std::string kommentar = Utf8ZuWindows1252(f.kommentar);
    kommentar.resize(28, '\0');
    tag.replace(97, 28, kommentar);
    tag.replace(125, 2, TitelnummerPaar(f.titelnummer));
    const int32_t code = f.genreAuswahl - 1;
    tag[127] = static_cast<char>(f.genreAuswahl > 0 && code <= 255 ? code : 255);
    return tag;
}

bool Mp3TAGSpeichernV1Datei(const std::string& dateiname, const std::string& tag, std::string& fehlertext) {
    if (!DoesExist(dateiname)) {
        fehlertext =
            "Die ID3v1-TAG der Datei '" + dateiname + "' konnte nicht gespeichert werden.\nDie Datei existiert nicht.";
        return false;
    }
    int64_t länge = 0, position = 0;
    {
        DateiLeser datei(dateiname);
        länge = datei.Länge();
        // Über den alten Tag, sonst angehängt: die Datei wird für Version 1 nie neu geschrieben.
        position = Mp3tagLesenStr(datei).size() == 128 ? länge - 128 : länge;
    }
    int fd = tag.size() == 128 && länge >= 0 ? ::open(dateiname.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK) : -1;
    if (fd < 0) {
        fehlertext = TagSpeicherFehlerText("ID3v1", dateiname, länge < 0 ? ENOENT : tag.size() != 128 ? EINVAL : errno);
        return false;
    }
    ssize_t geschrieben = ::pwrite(fd, tag.data(), tag.size(), position);
    int fehler = geschrieben == 128 ? 0 : geschrieben < 0 ? errno : ENOSPC;
    // Ein halb angehängter Block darf nicht stehen bleiben.
    if (fehler != 0 && position == länge) (void)!::ftruncate(fd, länge);
    if (::close(fd) != 0 && fehler == 0) fehler = errno;
    if (fehler != 0) {
        fehlertext = TagSpeicherFehlerText("ID3v1", dateiname, fehler);
        return false;
    }
    return true;
}

bool Mp3TAGSpeichernV1(Kartei& k, int32_t index, const std::string& tag, std::string& fehlertext) {
    return Mp3TAGSpeichernV1Datei(EintragPfad(k, ListenEintrag(k, index)), tag, fehlertext);
}

bool TAGEntfernen(Kartei& k, DateiInfo& rückgabe, const std::string& dateiname, int32_t eintrag,
                  const std::function<void()>& vorHinweis) {
    const std::string kannNicht = "Der ID3v1-TAG der Datei '" + dateiname + "' kann nicht entfernt werden.\n";
    int64_t länge = 0;
    {
        DateiLeser datei(dateiname);
        const bool vorhanden = datei.Offen();
        if (!vorhanden || Mp3tagLesenStr(datei).empty()) {
            if (vorHinweis) vorHinweis();
            const char* grund = vorhanden ? "Diese enthält keinen ID3v1-TAG." : "Die Datei existiert nicht.";
            k.ui.MeldungZeigen(kannNicht + grund, Meldung::Information);
            return false;
        }
        länge = datei.Länge();
    }
    const std::string neu = dateiname + "-neu";
    if (DoesExist(neu) && !DateiLöschenErzwingen(neu)) {
        k.ui.MeldungZeigen("Der ID3v1-TAG konnte nicht entfernt werden.\nDie Datei '" + neu +
                               "' konnte nicht gespeichert werden.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    const auto ergebnis = DateiBeschreibbarNeuSchreiben(dateiname, neu, DateiRest{dateiname, {{0, länge - 128}}});
    if (!TagEntfernenErgebnisMelden(k, "ID3v1", dateiname, ergebnis)) return false;
    rückgabe = MedienInfosLesen(k, dateiname, rückgabe, "10", false, "1", "0");
    if (k.DateiDaten.GültigerIndex(eintrag)) {
        k.DateiDaten[eintrag] = rückgabe;
        DateiGeändertSetzen(k);
    }
    return true;
}
