// DateiVerschieben in seinen Schritten: gleicher Name, fehlende Quelle, vorhandenes Ziel,
// Zielordner, Namen bereinigen, umbenennen oder kopieren, Quelle löschen, Fehlertexte.
#include "fileops/Verschieben.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/SystemFehler.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "fileops/DateiSchritte.h"
#include "fileops/FortlaufendeNamen.h"

#include <cerrno>

namespace {
// Länge der UTF-8-Folge ab p und ihr Codepunkt; ungültige Bytes zählen einzeln als -1.
size_t ZeichenLesen(std::string_view t, size_t p, int32_t& code) {
    const auto b = static_cast<unsigned char>(t[p]);
    const size_t länge = b < 0x80 ? 1 : (b >> 5) == 6 ? 2 : (b >> 4) == 14 ? 3 : (b >> 3) == 30 ? 4 : 0;
    if (länge == 0 || p + länge > t.size()) return code = -1, 1;
    code = länge == 1 ? b : b & (0x7F >> länge);
    for (size_t i = 1; i < länge; ++i) {
        const auto f = static_cast<unsigned char>(t[p + i]);
        if ((f & 0xC0) != 0x80) return code = -1, 1;
        code = (code << 6) | (f & 0x3F);
    }
    return länge;
}

bool ZeichenErlaubt(int32_t c, bool pfadErlaubt) {
    // Bytes, die kein UTF-8 sind, gehören zu Namen in alter Kodierung: sie bleiben.
    if (c < 0) return true;
    if (c == '*' || c == '?' || c == '"' || c == '<' || c == '>' || c == '|') return false;
    if (!pfadErlaubt && (c == '/' || c == '\\' || c == ':')) return false;
    return (c >= 8 && c <= 10) || c == 13 || (c >= 32 && c <= 126) || c == 145 || c == 146 || c >= 160;
}

std::string PfadText(const std::string& pfad) {
    std::string t;
    PfadTextAnhängen(t, pfad);
    return t;
}

// Schritt 9: die beiden Klassen von Fehlern.
std::string FehlerText(const std::string& quelle, int fehler) {
    std::string t = "Es ist ein Fehler beim Ändern des Dateinamens '" + PfadText(quelle) + "' aufgetreten.\n";
    switch (fehler) {
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
    case EMFILE:
    case ENFILE:
        return t + "Auf die Datei kann nicht zugegriffen werden (Fehler " + std::to_string(fehler) +
               ").\n\nStellen Sie sicher, dass diese nicht in einem Programm (z.B. Download-Programm, Musikeditor, "
               "Audioplayer) geöffnet ist und der Zugriff möglich ist (z.B. schreibgeschütztes Laufwerk).";
    default: return t + SystemFehlerText(fehler) + " (Fehler " + std::to_string(fehler) + ").";
    }
}

// Schritt 4: das Ziel besteht. true: weiter mit ziel (vielleicht umbenannt oder frei gemacht).
bool ZielBestehtKlären(Kartei& k, const std::string& quelle, std::string& ziel, std::string& fehlertext) {
    const int16_t auswahl = k.ui.VerschiebenDateiExistiert(DateiExistiertText(quelle, ziel));
    if (auswahl == 1) {
        const std::string name = DateinameAusPfad(ziel);
        const std::string basis = name.substr(0, name.size() - DateiEndung(name).size());
        ziel = FortlaufendenDateinamen(ziel, basis + "-", "0", "");
        return true;
    }
    if (auswahl == 2) {
        // Ersetzen der Datei durch sich selbst löschte sie nur.
        if (DieselbeDatei(quelle, ziel)) {
            fehlertext = "Die Datei '" + PfadText(quelle) + "' kann nicht durch sich selbst ersetzt werden.";
            return false;
        }
        if (DoesExist(ziel) && !DateiLöschenEinfach(ziel)) {
            k.ui.MeldungZeigen("Die Datei '" + PfadText(ziel) +
                                   "' konnte nicht überschieben werden, da die Datei nicht gelöscht werden kann.",
                               Meldung::Ausrufezeichen);
            return false;
        }
        return true;
    }
    fehlertext = "Die Datei '" + PfadText(quelle) +
                 "' kann nicht verschoben oder umbenannt werden.\nDie Zieldatei existiert '" + PfadText(ziel) +
                 "' bereits und Umbenennen wurde nicht gewünscht.";
    return false;
}

// Schritte 7 und 8: umbenennen, über Dateisystemgrenzen kopieren und die Quelle löschen.
int Übertragen(const std::string& quelle, const std::string& ziel, int16_t modus) {
    if (modus != ModusVerschieben) return DateiKopieren(quelle, ziel);
    int fehler = DateiUmbenennen(quelle, ziel);
    if (fehler == EXDEV) fehler = DateiKopieren(quelle, ziel);
    if (fehler != 0) return fehler;
    if (DoesExist(ziel) && DoesExist(quelle) && InStrText(1, ziel, quelle) == 0) {
        KK_TRACE("DateiVerschieben", "'" + quelle + "' wird gelöscht (Verschieben gewählt)...");
        DateiLöschenEinfach(quelle);  // scheitert es, bleiben beide: nichts geht verloren
    }
    return 0;
}
}  // namespace

std::string NamenBereinigen(std::string_view text, bool pfadErlaubt) {
    for (const char* doppelt : {"//", "/\\", "\\\\", "\\/"})
        if (text.find(doppelt) != std::string_view::npos) return {};
    if (!pfadErlaubt && !text.empty() && (text.back() == '/' || text.back() == '\\')) return {};
    std::string ergebnis;
    ergebnis.reserve(text.size());
    for (size_t p = 0; p < text.size();) {
        int32_t code = 0;
        const size_t länge = ZeichenLesen(text, p, code);
        if (ZeichenErlaubt(code, pfadErlaubt)) ergebnis.append(text.substr(p, länge));
        p += länge;
    }
    return ergebnis;
}

std::string DateiExistiertText(const std::string& quelle, const std::string& ziel) {
    return "Die Datei '" + PfadText(quelle) + "' (Größe: " + std::to_string(DateiGrößeLesen(quelle)) +
           " Bytes) kann nicht umbenannt werden.\nDie Zieldatei '" + PfadText(ziel) +
           "' (Größe: " + std::to_string(DateiGrößeLesen(ziel)) +
           " Bytes) existiert bereits.\n\nBenennen Sie die Quelldatei mit der Funktion 'Umbenennen' in einen "
           "einmaligen Dateinamen um (z.B. 'Datei-0.mp3', 'Datei-1.mp3',...) oder wählen Sie 'Abbrechen', um den "
           "Kopiervorgang abzubrechen. Mit der Funktion 'Ersetzen' wird die bereits existierende Datei vom "
           "Datenträger gelöscht und durch die neue Datei ersetzt.";
}

bool DateiVerschieben(Kartei& k, const std::string& quelle, std::string& ziel, int16_t modus, std::string& fehlertext) {
    fehlertext.clear();
    if (modus == ModusVerschieben && quelle == ziel) {
        KK_TRACE("DateiVerschieben", "Dateinamen sind exakt gleich - '" + quelle + "'");
        return true;
    }
    if (!DoesExist(quelle)) {
        fehlertext = "Die Datei '" + PfadText(quelle) +
                     "' (Quelldatei) kann nicht verschoben oder umbenannt werden.\nDiese '" + PfadText(quelle) +
                     "' existiert nicht.";
        return false;
    }
    // Nur Groß/Klein geändert: das "vorhandene" Ziel ist die Quelle selbst.
    const bool nurSchreibweise = modus == ModusVerschieben && NamenGleich(ziel, quelle);
    if (!nurSchreibweise && DoesExist(ziel) && !ZielBestehtKlären(k, quelle, ziel, fehlertext)) return false;

    const std::string ordner = PfadZurückgeben(ziel);
    if (!IstOrdner(ordner)) {
        KK_TRACE("DateiVerschieben", "Zielpfad '" + ordner + "' wird angelegt");
        if (const int fehler = ZielordnerAnlegen(ordner)) {
            fehlertext = FehlerText(quelle, fehler);
            return false;
        }
    }
    const std::string name = NamenBereinigen(DateinameAusPfad(ziel), false);
    ziel = ordner.empty() && !IstVollerPfad(ziel) ? name : ordner + "/" + name;
    if (const int fehler = Übertragen(quelle, ziel, modus)) {
        fehlertext = FehlerText(quelle, fehler);
        return false;
    }
    return true;
}
