#include "intake/HinzufuegenFragen.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "intake/Hinzufuegen.h"
#include "intake/PlayListe.h"

#include <vector>

std::string FreigegebeneMasken(const Kartei& k) {
    const IndexOptionen& o = k.Optionen;
    std::string masken;
    if (o.DateitypenLeer) return masken;
    for (const std::string& eintrag : o.DateitypEintrag) {
        const auto gleich = eintrag.find('=');
        if (gleich == std::string::npos || gleich == 0 || eintrag.substr(gleich + 1) != "1") continue;
        const std::string endung = eintrag.substr(0, gleich);
        if (endung != "*") masken += "*." + endung + ",";
    }
    if (!masken.empty()) masken.pop_back();
    return masken;
}

void DateienHinzufügenFragen(Kartei& k) {
    // Eine Tabelle mit nur einer Zeile gilt wie keine: so zählt die Tabelle ihre Einträge.
    if (k.Optionen.DateitypenLeer || k.Optionen.DateitypEintrag.UBound() <= 1) {
        k.ui.MeldungZeigen("Sie können keine Dateien hinzufügen, da kein Dateityp eingerichtet wurde.\n\n"
                           "Installieren Sie dieses Programm neu, um die Dateitypen wiederherzustellen.",
                           Meldung::Information);
        return;
    }
    const std::string masken = FreigegebeneMasken(k);
    if (masken.empty()) {
        k.ui.MeldungZeigen("Sie können keine Dateien hinzufügen, da kein Dateityp für die Verwaltung freigegeben "
                           "wurde.\n\nÄndern Sie diese Einstellung in den 'Optionen'.",
                           Meldung::Information);
        return;
    }
    const std::string filter =
        "Unterstützte Dateiformate (" + masken + ")|" + Ersetzen(masken, ",", ";") + "|Alle Dateien (*.*)|*.*";
    std::vector<std::string> gewählt;
    if (!k.ui.DateienWählen("", filter, gewählt)) return;  // abgebrochen: still
    if (gewählt.empty()) {
        k.ui.MeldungZeigen("Bitte wählen Sie mindestens eine Datei aus.", Meldung::Information);
        return;
    }
    EinsBasiert<std::string> dateien;
    for (auto& d : gewählt) dateien.Anhängen(std::move(d));
    EinfachDateiHinzufügen(k, dateien, true, true, true);
}

void OrdnerHinzufügenFragen(Kartei& k) {
    std::string ordner;
    if (!k.ui.OrdnerWählen("Bitte wählen Sie einen Ordner mit Mediendateien...", ordner)) return;
    ordner = NullAbschneiden(ordner);
    if (ordner.empty()) return;
    EinfachOrdnerHinzufügen(k, ordner, true, k.E.HinzufügenUnterordner, true, "", true, false);
}

void PlaylisteImportierenFragen(Kartei& k) {
    std::vector<std::string> gewählt;
    if (!k.ui.DateienWählen("",
                            "Alle bekannten Playlisten (*.m3u,*.pls)|*.pls;*.m3u|PLS-Playlisten (*.pls)|*.pls|"
                            "M3U-Playlisten (*.m3u)|*.m3u|Alle Dateien (*.*)|*.*",
                            gewählt) ||
        gewählt.empty())
        return;
    PlayListLesen(k, gewählt.front(), true, true, true);
}
