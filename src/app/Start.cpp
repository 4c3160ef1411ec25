#include "app/Start.h"

#include "app/Texte.h"
#include "app/Version.h"
#include "app/Zahlen.h"
#include "settings/EinstellungenSpeicher.h"

std::string KommandozeileLesen(const std::vector<std::string>& argumente) {
    std::string zeile;
    for (size_t i = 0; i < argumente.size(); ++i) zeile += (i > 0 ? " " : "") + argumente[i];
    if (zeile.empty() || zeile.front() != '"') return zeile;
    // Nur das äußere Paar fällt weg; was sonst auf der Zeile steht, wird nicht angesehen.
    const auto länge = static_cast<int32_t>(zeile.size());
    return länge > 2 ? Mid(zeile, 2, länge - 2) : std::string();
}

std::string VersionsStartText() { return ZahlText(KK_VERSION_MAJOR) + ZahlText(KK_VERSION_MINOR); }

int16_t VersionsStart() {
    int16_t start = 0;
    IntegerAus(static_cast<double>(ZahlLesen(VersionsStartText())), start);
    return start;
}

void StartVorbereiten(Kartei& k, const std::vector<std::string>& argumente) {
    k.LetzteSpeicherung = k.uhr.Jetzt();
    EinstellungenLesen(k);
    const std::string index = KommandozeileLesen(argumente);
    if (!index.empty()) k.Dateiname = index;
}

void SpielerEinstellungenReparieren(Kartei& k) {
    if (k.E.WinampLautstärke > 255 || k.E.WinampLautstärke < 0) k.E.WinampLautstärke = 128;
    if (k.E.WinampBalance < -128 || k.E.WinampBalance > 128) k.E.WinampBalance = 0;
}

std::string BegrüßungsText(const Kartei& k) {
    return k.DateiAnzahl >= 1 ? "Willkommen zurück! Bitte wählen Sie eine Datei oder suchen Sie"
                              : "Willkommen! Bitte fügen Sie Dateien zum Index hinzu";
}

int16_t NächsterTipp(Kartei& k, int32_t tippAnzahl) {
    int16_t& tipp = k.E.TippsAktueller;
    if (tipp == 0) return 0;
    // Ein gespeicherter Wert außerhalb der Tipps beginnt wieder beim ersten.
    tipp = (tipp >= tippAnzahl || tipp < 0) ? int16_t{1} : static_cast<int16_t>(tipp + 1);
    return tipp;
}

StartDaten StartAbschließen(Kartei& k, int32_t tippAnzahl) {
    SpielerEinstellungenReparieren(k);
    StartDaten d;
    d.fensterZentrieren = ZahlText(k.E.Start) != VersionsStartText();
    d.geometrieAnwenden = k.E.FensterWidth != 0 && k.E.FensterHeight != 0;
    d.maximieren = k.E.FensterMax == 1;
    d.begrüßung = BegrüßungsText(k);
    d.willkommenZeigen = k.E.Start < 1;
    d.tipp = NächsterTipp(k, tippAnzahl);
    k.E.Start = VersionsStart();
    return d;
}
