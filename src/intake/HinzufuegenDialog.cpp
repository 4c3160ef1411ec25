#include "intake/HinzufuegenDialog.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "intake/Hinzufuegen.h"
#include "intake/PlayListe.h"

namespace {
// Während der Dialog hinzufügt, behält die Liste ihre alten Markierungen nicht: markiert werden
// danach die neuen Zeilen.
class OhneMarkierungen {
public:
    explicit OhneMarkierungen(Kartei& k) : k_(k), vorher_(k.Suche.MarkierungenBehalten) {
        k.Suche.MarkierungenBehalten = false;
    }
    ~OhneMarkierungen() { k_.Suche.MarkierungenBehalten = vorher_; }
    OhneMarkierungen(const OhneMarkierungen&) = delete;
    OhneMarkierungen& operator=(const OhneMarkierungen&) = delete;

private:
    Kartei& k_;
    bool vorher_;
};
}  // namespace

bool DateienHinzufügenFilter(Kartei& k, std::string& filter) {
    const IndexOptionen& o = k.Optionen;
    if (o.DateitypenLeer || o.DateitypEintrag.UBound() < 1) {
        k.ui.MeldungZeigen("Sie können keine Dateien hinzufügen, da kein Dateityp eingerichtet wurde.\n\n"
                           "Installieren Sie dieses Programm neu, um die Dateitypen wiederherzustellen.",
                           Meldung::Information);
        return false;
    }
    std::string liste;
    for (const std::string& eintrag : o.DateitypEintrag) {
        const auto gleich = eintrag.find('=');
        if (gleich == std::string::npos || eintrag.back() != '1') continue;
        const std::string endung = eintrag.substr(0, gleich);
        if (endung == "*") continue;
        liste += "*." + endung + ",";
    }
    if (liste.empty()) {
        k.ui.MeldungZeigen("Sie können keine Dateien hinzufügen, da kein Dateityp für die Verwaltung freigegeben "
                           "wurde.\n\nÄndern Sie diese Einstellung in den 'Optionen'.",
                           Meldung::Information);
        return false;
    }
    liste.pop_back();
    filter = "Unterstützte Dateiformate (" + liste + ")|" + Ersetzen(liste, ",", ";") + "|Alle Dateien (*.*)|*.*";
    return true;
}

bool DateienFürIndexWählen(Kartei& k, EinsBasiert<std::string>& dateien) {
    std::string filter;
    if (!DateienHinzufügenFilter(k, filter)) return false;
    std::vector<std::string> gewählt;
    if (!k.ui.DateienWählen("Dateien zum Index hinzufügen", filter, gewählt)) return false;
    dateien.ReDim(0);
    for (auto& d : gewählt) dateien.Anhängen(std::move(d));
    if (dateien.UBound() < 1) {
        k.ui.MeldungZeigen("Bitte wählen Sie mindestens eine Datei aus.", Meldung::Information);
        return false;
    }
    return true;
}

void GewählteDateienHinzufügen(Kartei& k, const EinsBasiert<std::string>& dateien) {
    OhneMarkierungen sperre(k);
    EinfachDateiHinzufügen(k, dateien, true, true, true);
}

bool OrdnerFürIndexWählen(Kartei& k, std::string& ordner) {
    ordner.clear();
    if (!k.ui.OrdnerWählen("Bitte wählen Sie einen Ordner mit Mediendateien...", ordner)) return false;
    ordner = NullAbschneiden(ordner);
    return !ordner.empty() && ordner != std::string(1, '\0');
}

void GewähltenOrdnerHinzufügen(Kartei& k, const std::string& ordner) {
    EinfachOrdnerHinzufügen(k, ordner, true, k.E.HinzufügenUnterordner, true, "", true, false);
}

bool PlaylisteFürIndexWählen(Kartei& k, std::string& datei) {
    std::vector<std::string> gewählt;
    if (!k.ui.DateienWählen("Playliste importieren",
                            "Alle bekannten Playlisten (*.m3u,*.pls)|*.pls;*.m3u|PLS-Playlisten (*.pls)|*.pls|"
                            "M3U-Playlisten (*.m3u)|*.m3u|Alle Dateien (*.*)|*.*",
                            gewählt) ||
        gewählt.empty())
        return false;
    datei = gewählt.front();
    return true;
}

void GewähltePlaylisteImportieren(Kartei& k, const std::string& datei) {
    OhneMarkierungen sperre(k);
    PlayListLesen(k, datei, true, true, true);
}
