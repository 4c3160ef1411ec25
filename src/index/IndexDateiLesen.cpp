#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/SystemFehler.h"
#include "app/Tabelle.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "app/BlockLeser.h"
#include "index/IndexDatei.h"
#include "index/IndexZeilen.h"
#include "index/IndexZugriff.h"
#include "index/Spalten.h"
#include "intake/NichtVerfuegbar.h"
#include "media/MedienInfos.h"
#include "index/Dateitypen.h"
#include "shell/Fortschritt.h"

#include <cerrno>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace {
bool NichtLesbar(Kartei& k, const std::string& pfad, const std::string& grund) {
    k.ui.MeldungZeigen("Die Indexdatei '" + pfad + "' kann nicht gelesen werden.\n" + grund +
                           "\n\nEs wurde kein Index geladen; die Datei bleibt unverändert.",
                       Meldung::Ausrufezeichen);
    return false;
}

bool StartBildschirmBeimLaden(const Kartei& k) {
    return k.E.StartBildschirm == 1 && k.E.StartBildschirmNichtBeiLaden != 1;
}

int32_t AufLong(int64_t wert) { return wert > INT32_MAX ? INT32_MAX : int32_t(wert); }

// Eine "~"-Datei heißt: es wird gerade gespeichert, oder eine Speicherung brach ab.
bool AufSpeichernWarten(Kartei& k, const std::string& pfad) {
    const std::string temp = pfad + "~";
    if (!DoesExist(temp)) return true;
    if (StartBildschirmBeimLaden(k))
        FortschrittZeigenStarten(k, 0, true, false, false,
                                 "Warte auf Verfügbarkeit von '" + DateinameAusPfad(pfad) + "'");
    const Datum start = k.uhr.Jetzt();
    do {
        if (!DoesExist(temp)) break;
        if (FortschrittFensterOffen(k) && !FortschrittZeigen(k, "")) break;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    } while (DatumDifferenz(Zeiteinheit::Sekunde, start, k.uhr.Jetzt()) <= 4);
    if (!DoesExist(temp)) return true;
    const std::string frage =
        std::string(ProgrammTitel) +
        " wurde entweder nicht korrekt beendet oder speichert gerade Ihre Indexdatei.\n"
        "Durch den Ladevorgang dieser Datei würde der Speicher-Vorgang unterbrochen und Datenverlust könnte die "
        "Folge sein.\n\nMöchten Sie den Ladevorgang fortsetzen?";
    if (k.ui.MeldungZeigen(frage, Meldung::JaNeinAusruf) != Meldung::Ja) {
        FortschrittZeigenEnde(k);
        return false;
    }
    DateiLöschenEinfach(temp);
    return true;
}

// Eine fehlende Indexdatei wird angelegt (O_EXCL: nie über eine, die ein anderer gerade anlegt).
bool LeereIndexdateiAnlegen(Kartei& k, const std::string& ziel, const std::string& pfad) {
    const int fd = ::open(ziel.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd < 0) {
        if (errno == EEXIST) return true;
        return NichtLesbar(k, pfad, "Sie kann nicht angelegt werden: " + SystemFehlerText(errno) + ".");
    }
    constexpr std::string_view kopf = "#TAG:kk100\r\n";
    const bool gut = ::write(fd, kopf.data(), kopf.size()) == ssize_t(kopf.size());
    const int fehler = gut ? 0 : errno;
    ::close(fd);
    return gut || NichtLesbar(k, pfad, "Sie kann nicht angelegt werden: " + SystemFehlerText(fehler) + ".");
}

// Nur eine gewöhnliche, lesbare Datei ist ein Index; alles andere wird weder gelesen noch ersetzt.
bool LesbarPrüfen(Kartei& k, const std::string& ziel, const std::string& pfad) {
    int fehler = 0;
    const char art = DateiArtLesen(ziel, fehler);
    if (art == '!' || art == '-') return NichtLesbar(k, pfad, SystemFehlerText(fehler) + ".");
    if (art != 'f') return NichtLesbar(k, pfad, "Unter diesem Namen steht " + DateiArtText(art) + ".");
    if (::access(ziel.c_str(), R_OK) != 0) return NichtLesbar(k, pfad, SystemFehlerText(errno) + ".");
    return true;
}

// Formatnummer aus Zeile 1: 2, 1, 0 oder -1 (einfache Liste bzw. ungültig); false = abgelehnt.
bool FormatBestimmen(Kartei& k, const std::string& pfad, const std::string& zeile1, int& format) {
    const std::string_view z = zeile1;
    if (z.starts_with("#TAG:kk102")) format = 2;
    else if (z.starts_with("#TAG:kk101")) format = 1;
    else if (z.starts_with("#TAG:kk100")) format = 0;
    else if (z.starts_with("#TAG:kk")) format = 2;
    else format = -1;

    const std::string rest = zeile1.size() > 7 ? zeile1.substr(7) : std::string();
    if (format == 2 && !z.starts_with("#TAG:kk102") && IstNumerisch(rest) && rest > "102")
        k.ui.MeldungZeigen("Die Indexdatei '" + pfad + "' liegt in einem neueren Datei-Format ('" + Right(zeile1, 3) +
                               "') vor.\nMöglicherweise stehen einige Funktionen nicht zur Verfügung oder es können "
                               "beim Speichern Daten verloren gehen.\n\nInstallieren Sie eine neuere Version dieses "
                               "Programmes, um diesen Hinweis zu verhindern.",
                           Meldung::Information);
    if (format != -1) return true;
    if (k.ui.MeldungZeigen("Die Indexdatei '" + pfad +
                               "' liegt in einem älteren Dateiformat vor oder ist ungültig.\n"
                               "Zum Aktualisieren werden nun die Datei-Informationen der enthaltenen Dateien neu "
                               "eingelesen.\n\nSoll die Datei geladen und Aktualisierung versucht werden?",
                           Meldung::JaNeinFrage) != Meldung::Ja) {
        FortschrittZeigenEnde(k);
        return false;
    }
    DateiGeändertSetzen(k);
    return true;
}

// Füllt die Tabelle beim Lesen, Eintrag für Eintrag.
struct Füller {
    Kartei& k;
    BlockLeser& leser;
    bool fortschritt;
    int32_t anzahl = 0;
    TabellenWachstum wachstum;

    int32_t NeuerEintrag() {
        if (fortschritt && anzahl >= 500 && anzahl % 500 == 0)
            FortschrittZeigen(k, double(AufLong(leser.Position() + 1)), "Lese Datei");
        if (anzahl == TabelleAnfangsgröße && leser.Position() > 0)  // Platz nach der Dateigröße schätzen
            TabelleVorbereiten(k, leser.Länge() * anzahl / leser.Position() * 11 / 10 + TabelleAnfangsgröße);
        ++anzahl;
        TabelleFürNummerVergrößern(k, anzahl, wachstum);
        k.DateiTreffer[anzahl] = 1;
        return anzahl;
    }

    // Eine Textliste älterer Fassungen: jede Zeile ein ganzer Pfad, noch nicht untersucht.
    void EinfacheListeLesen() {
        std::string_view zeile;
        while (leser.ZeileEinfach(zeile)) {
            if (fortschritt) FortschrittZeigen(k, double(AufLong(leser.Position())), "Lese Datei");
            if (zeile.empty() || zeile.starts_with("#TAG:")) continue;
            const int32_t n = NeuerEintrag();
            k.DateiPfade[n] = DateiTextLesen(zeile);
        }
    }

    void ZeilenLesen() {
        std::string_view zeile;
        Größenliste größen;
        while (leser.ZeileCrLf(zeile)) {
            if (zeile.starts_with("#TAG:")) {
                if (!GrößenlisteLesen(zeile, größen)) continue;
                const int32_t n = NeuerEintrag();
                DateiInfo& d = k.DateiDaten[n];
                d.Mp3_ID3v1_Status = 2;
                d.Mp3_ID3v2_Status = 2;
                d.Datei_Größe = -1;
                d.Datei_Typ = 0;
                DatensatzFelderLesen(zeile, größen, k.DateiPfade[n], d);
            } else if (zeile.starts_with("#OPT:")) {
                OptionZeileLesen(k.Optionen, zeile);
            }
        }
    }
};

// Einträge ohne Datum, Größe oder Typ (und ganz neue aus einer Textliste) von der Platte nachlesen.
void LückenFüllen(Kartei& k, int format) {
    const std::string& flags = k.E.Mp3TagLesen;
    if (Left(flags, 3) == "000") return;
    const std::string tagsVoll = Left(flags, 2), kopf = Mid(flags, 3, 1);
    bool gestartet = false;
    for (int32_t i = 1; i <= k.DateiAnzahl; ++i) {
        const DateiInfo& d = k.DateiDaten[i];
        const bool voll = format == -1 && d.Mp3_ID3v1_Status == 0;
        if (!voll && !d.Datei_HinzugefügtAm.empty() && d.Datei_Größe != -1 && d.Datei_Typ >= 0) continue;
        if (!gestartet) {
            FortschrittZeigenStarten(k, k.DateiAnzahl, true, true, true, "Datei-Informationen lesen");
            gestartet = true;
        }
        if (!FortschrittZeigen(k, i, k.DateiPfade[i])) break;
        // 0 heißt hier "lesbar": eine fehlende Datei auf fester Platte wird übergangen, nicht
        // als leerer Datensatz mit dem Tagesdatum nachgelesen.
        const int16_t antwort = DateiNichtVerfügbarPrüfen(k, i, true, true);
        if (antwort == 2) break;
        if (antwort != 0) continue;
        k.DateiDaten[i] = MedienInfosLesen(k, k.DateiPfade[i], d, voll ? tagsVoll : "00", false, kopf, kopf);
        DateiGeändertSetzen(k);
    }
}
}  // namespace

bool DateiLaden(Kartei& k, const std::string& pfadEingang) {
    const std::string pfad = pfadEingang;  // pfad darf k.Dateiname selbst sein
    k.Dateiname = pfad;
    k.DateiAnzahl = 0;
    k.DateiGeändert = false;
    k.IndexZugriff.NichtsGeladen = true;  // bis die Datei gelesen ist
    k.IndexZugriff.geladen = IndexDateiStand{};
    k.IndexZugriff.sperre.Lösen();

    if (!AufSpeichernWarten(k, pfad)) return false;
    const std::string ziel = IndexZielAuflösen(pfad);
    if (!LeereIndexdateiAnlegen(k, ziel, pfad) || !LesbarPrüfen(k, ziel, pfad)) return false;
    // Geteilt gesperrt liest niemand eine halb ersetzte Datei; die Kommandozeile hält exklusiv.
    IndexSperre sperre;
    const bool halten = k.IndexZugriff.SperreHalten;
    if (!IndexDateiSperren(k, ziel, pfad, halten, sperre)) return false;
    const IndexDateiStand stand = IndexDateiStandLesen(ziel);

    BlockLeser leser;
    if (!leser.Öffnen(ziel)) return NichtLesbar(k, pfad, SystemFehlerText(errno) + ".");
    std::string_view ansicht;
    const std::string zeile1 = leser.ZeileEinfach(ansicht) ? std::string(ansicht) : std::string();
    int format = -1;
    if (!FormatBestimmen(k, pfad, zeile1, format)) return false;

    IndexOptionenVorgaben(k.Optionen);
    const bool fortschritt = StartBildschirmBeimLaden(k);
    if (fortschritt) {
        FortschrittZeigenStarten(k, AufLong(leser.Länge()), false, true, true, "Lade '" + DateinameAusPfad(pfad) + "'");
        FortschrittZeigen(k, 0, "Lese Datei");
    }
    IndexGrößeÄndern(k, TabelleAnfangsgröße, false);

    Füller füller{k, leser, fortschritt, 0, TabellenWachstum{}};
    if (format == -1) füller.EinfacheListeLesen();
    else füller.ZeilenLesen();

    if (fortschritt) FortschrittZeigen(k, AufLong(leser.Länge()), "Lese Datei");
    TabelleZuschneiden(k, füller.anzahl);
    k.DateiAnzahl = füller.anzahl;
    if (!halten) sperre.Lösen();  // gelesen ist gelesen; das Nachlesen der Medien hält niemanden auf

    if (format < 2 && k.Optionen.DateitypenLeer) {
        DateitypenVorgabenEinsetzen(k.Optionen);
        DateiGeändertSetzen(k);
    }
    LückenFüllen(k, format);

    FortschrittZeigenEnde(k);
    k.IndexZugriff.NichtsGeladen = false;
    k.IndexZugriff.geladen = stand;
    if (halten) k.IndexZugriff.sperre = std::move(sperre);
    bool fehler = false;
    SpaltenAnpassen(k, k.Liste.lstSongs, fehler);
    return true;
}
