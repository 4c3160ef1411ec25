// Der Weg der Einträge zum Spieler: sortieren nach Art, M3U schreiben, übergeben, zählen.
#include "player/Abspielen.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Zahlen.h"
#include "intake/DateiFormat.h"
#include "intake/NichtVerfuegbar.h"
#include "player/Erkennung.h"
#include "player/WinampSteuerung.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace {
constexpr int32_t FehlerDateinummer = 52, FehlerZugriff = 75;

std::string Anzeige(const std::string& pfad) {
    std::string text;
    PfadTextAnhängen(text, pfad);
    return text;
}

std::string FehlerText(int32_t nummer) {
    return nummer == FehlerDateinummer ? "Dateiname oder -nummer falsch" : "Fehler beim Zugriff auf Pfad/Datei";
}

// Der Fehlerzweig des Abspielens: eine Warnung, dann endet der Vorgang.
bool Fehlerbehandlung(Kartei& k) {
    const int32_t n = k.Spieler.PlaylistFehler;
    k.ui.MeldungZeigen("Eine Datei konnte nicht angezeigt werden.\n" + FehlerText(n) + " (Fehler: " + ZahlText(n) +
                           ").",
                       Meldung::Ausrufezeichen);
    return false;
}

void Zeile(Kartei& k, const std::string& text) {
    k.Spieler.PlaylistInhalt += text;
    k.Spieler.PlaylistInhalt += '\n';
    ++k.Spieler.PlaylistZeilen;
}

bool PlaylistDateiSchreiben(const std::string& pfad, const std::string& inhalt) {
    std::error_code fehler;
    std::filesystem::create_directories(PfadZurückgeben(pfad), fehler);
    std::ofstream datei(pfad, std::ios::binary | std::ios::trunc);
    datei << inhalt;
    return static_cast<bool>(datei.flush());
}

// Die erste Audiodatei im Spielmodus geht sofort allein hinüber, damit es gleich klingt.
void ErsteDateiSpielen(Kartei& k, const EinsBasiert<int32_t>& Dateien, int32_t i) {
    DateienAbspielenHinzufügen(k);
    PlaylistEintragSchreiben(k, Dateien, i);
    if (k.Spieler.PlaylistFehler) return;
    PlaylistÜbergeben(k, true, true);
    if (k.Spieler.PlaylistFehler || !Winamp_Check(k, true)) return;
    WinAMP_SendCommandMessage(k, WinampNachricht::ZumEnde, false);
    WinAMP_SendCommandMessage(k, WinampNachricht::Spielen, false);
}

// Eine Audiodatei; false, wenn ein Fehler den Vorgang beenden muss.
bool AudioDatei(Kartei& k, const EinsBasiert<int32_t>& Dateien, int32_t i, bool Hinzufügen, bool NeuePlaylist,
                int32_t& Zähler) {
    if (NeuePlaylist && Zähler < 0) WinAMP_SendCommandMessage(k, WinampNachricht::PlaylistLeeren, true);
    // Andere Spieler sieht die Erkennung nicht: dort zählt das Abspielen selbst.
    if (k.E.AbspielStatistikSpeichern != 0 && !SpielerNameBekannt(k.E.WinampPfad))
        AbspielenZählen(k, Dateien[i], k.uhr.Jetzt());
    if (!Hinzufügen && Zähler < 0) {
        ErsteDateiSpielen(k, Dateien, i);
        Zähler = 0;
        return k.Spieler.PlaylistFehler == 0;
    }
    if (Zähler < 1) DateienAbspielenHinzufügen(k);
    PlaylistEintragSchreiben(k, Dateien, i);
    if (k.Spieler.PlaylistFehler) return false;
    if (Zähler == -1) Zähler = 0;
    ++Zähler;
    return true;
}
}  // namespace

std::string PlaylistPfad() {
    const char* cache = std::getenv("XDG_CACHE_HOME");
    const char* home = std::getenv("HOME");
    std::string ordner = cache && *cache == '/' ? cache : std::string(home ? home : "") + "/.cache";
    return ordner + "/klangkartei/klangkartei.m3u";
}

bool DateienAbspielenHinzufügen(Kartei& k) {
    auto& s = k.Spieler;
    s.PlaylistOffen = false;
    if (!DoesExist(SpielerProgramm(k.E.WinampPfad))) {
        k.ui.MeldungZeigen("Sie benötigen einen Audioplayer für diese Funktion.\nBitte installieren Sie z.B. 'Winamp' "
                           "von https://www.winamp.com und geben Sie den Pfad unter 'Optionen' an.",
                           Meldung::Information);
        return false;
    }
    s.PlaylistOffen = true;
    s.PlaylistInhalt.clear();
    s.PlaylistZeilen = 0;
    if (k.E.PlaylistFürWinamp == 1) Zeile(k, "#EXTM3U");
    s.PlaylistZeilen = 0;
    return true;
}

bool PlaylistEintragSchreiben(Kartei& k, const EinsBasiert<int32_t>& Dateien, int32_t Nummer) {
    if (!Dateien.GültigerIndex(Nummer)) return false;
    const int32_t eintrag = Dateien[Nummer];
    const int16_t prüfung = DateiNichtVerfügbarPrüfen(k, eintrag, false, false);
    if (prüfung == 1 || prüfung == 2) return false;
    if (!k.Spieler.PlaylistOffen) {
        k.Spieler.PlaylistFehler = FehlerDateinummer;
        return false;
    }
    const DateiInfo& d = k.DateiDaten[eintrag];
    if (k.E.PlaylistFürWinamp == 1 && d.Header_Dauer >= 1 && d.Mp3_ID3v1_Status == 1)
        Zeile(k, "#EXTINF:" + ZahlText(d.Header_Dauer) + "," + d.Mp3_ID3v1_Interpret + " - " + d.Mp3_ID3v1_Titel);
    Zeile(k, k.DateiPfade[eintrag]);
    return true;
}

bool PlaylistÜbergeben(Kartei& k, bool Hinzufügen, bool OhneFokus) {
    auto& s = k.Spieler;
    const std::string pfad = PlaylistPfad();
    if (s.PlaylistOffen && !PlaylistDateiSchreiben(pfad, s.PlaylistInhalt)) {
        s.PlaylistOffen = false;
        s.PlaylistFehler = FehlerZugriff;
        return false;
    }
    s.PlaylistOffen = false;
    std::string parameter = Hinzufügen ? k.E.WinampParameterHinzufügen : k.E.WinampParameterAbspielen;
    if (!parameter.empty()) parameter = " " + parameter;
    const std::string argument = "\"" + pfad + "\"" + parameter;
    const std::string programm = SpielerProgramm(k.E.WinampPfad);
    if (OhneFokus) ProgrammStartenVB(k, programm, argument);
    else ProgrammStarten(k, programm, argument);
    const std::string name = Anzeige(DateinameAusPfad(k.E.WinampPfad));
    k.ui.TitelNachrichtZeigen(
        Hinzufügen ? "Dateien in Playlist bei '" + name + "'" : "Dateien abspielen mit '" + name + "'", 0);
    return true;
}

bool AbspielenMediaPlayer(Kartei& k, const EinsBasiert<int32_t>& Dateien, bool Hinzufügen, bool Ausführen,
                          bool NeuePlaylist, const std::string& Programm) {
    int32_t Zähler = -1;
    std::string BildDatei;
    k.Spieler.PlaylistZeilen = 0;
    k.Spieler.PlaylistFehler = 0;
    NichtVerfügbarFragenZurücksetzen(k);
    for (int32_t i = 1; i <= Dateien.UBound(); ++i) {
        const int16_t prüfung = DateiNichtVerfügbarPrüfen(k, Dateien[i], false, false);
        if (prüfung == 1) continue;
        if (prüfung == 2) break;
        const std::string& pfad = k.DateiPfade[Dateien[i]];
        if (!DateiFormatUnterstützt(k, pfad, false, false, false, false)) {
            if (k.ui.MeldungZeigen("Das Dateiformat der Datei '" + Anzeige(pfad) +
                                       "' wird z.Zt. nicht unterstützt.\nMöchten Sie die Datei mit dem "
                                       "Standard-Programm anzeigen?",
                                   Meldung::JaNeinFrage) == Meldung::Ja)
                ProgrammStarten(k, pfad, "");
            continue;
        }
        if (Ausführen) {
            if (!Programm.empty()) ProgrammStarten(k, Programm, "\"" + pfad + "\"");
            else ProgrammStarten(k, pfad, "");
            continue;
        }
        if (DateiFormatUnterstützt(k, pfad, false, false, true, false)) {
            if (!AudioDatei(k, Dateien, i, Hinzufügen, NeuePlaylist, Zähler)) return Fehlerbehandlung(k);
        } else if (DateiFormatUnterstützt(k, pfad, false, true, false, false)) {
            BildDatei = pfad;  // nur das letzte Bild einer Auswahl wird gezeigt
        }
    }
    if (Zähler > 0 && !PlaylistÜbergeben(k, true, false)) return Fehlerbehandlung(k);
    if (!BildDatei.empty()) k.ui.BildAnzeigen(BildDatei);
    return true;
}

bool BeiDoppelklickAusführen(Kartei& k, const EinsBasiert<int32_t>& Dateien, bool Umschalt,
                             const std::function<void()>& tagEditor) {
    switch (k.E.BeiDoppelklick) {
    case 2: return AbspielenMediaPlayer(k, Dateien, true, false, Umschalt, "");
    case 3:
        if (tagEditor) tagEditor();
        return AbspielenMediaPlayer(k, Dateien, false, true, false, "");
    case 4: return AbspielenMediaPlayer(k, Dateien, false, true, false, k.E.AusführenPfad);
    default: return AbspielenMediaPlayer(k, Dateien, false, false, Umschalt, "");
    }
}

bool AusführenMitPrüfen(Kartei& k, const std::string& programm) {
    if (programm.empty()) {
        k.ui.MeldungZeigen("Bitte geben Sie ein Programm an.", Meldung::Information);
        return false;
    }
    if (!DoesExist(programm)) {
        k.ui.MeldungZeigen("Die angegebene Datei '" + Anzeige(programm) + "' existiert nicht.", Meldung::Information);
        return false;
    }
    k.E.AusführenPfad = programm;
    return true;
}

bool EintragAusführenMit(Kartei& k, const EinsBasiert<int32_t>& Dateien) {
    std::string programm = k.E.AusführenPfad;
    if (!k.ui.AusführenMitWählen(programm, [&k](const std::string& p) { return AusführenMitPrüfen(k, p); }))
        return false;
    return AbspielenMediaPlayer(k, Dateien, false, true, false, programm);
}
