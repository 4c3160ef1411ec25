#include "shell/Tipps.h"

#include "app/Kartei.h"

#include <array>

namespace {
const std::array<std::string, 22> Tipps = {
    "Dieses Fenster gibt Ihnen bei jedem Start einen neuen Hinweis und verrät Tricks, die Sie vielleicht noch "
    "nicht kennen!",
    "Sie können mit dem Klangkartei viele verschiedene Datei-Typen verwalten und bearbeiten.\r\nFügen Sie diese "
    "einfach dem Index hinzu. Klicken Sie dazu im Hauptfenster auf 'Zum Index hinzufügen'.",
    "Verwenden Sie Datei-TAGs zum Beschreiben des Inhalts einer Datei.\r\nWählen Sie einfach im Hauptfenster die "
    "Datei(en) und klicken Sie auf 'Datei-Infos'.",
    "Sie können zu Dateien jetzt auch einen TAG der Version 2 hinzufügen oder diesen ändern.\r\nDies bedeutet, daß "
    "Sie u.a. jetzt eigene Genre erfassen können und der Eingabeplatz in den TAG-Feldern unbegrenzt ist.",
    "Die Funktion 'Umbenennen' kann viel mehr als nur umbenennen!\r\nSie können damit (entgegen des Namens der "
    "Funktion) auch Dateien verschieben, wenn Sie als 'Format' bei 'Nach Index-Feldern verschieben' einen Pfad "
    "eingeben.",
    "Die Funktion 'Umbenennen' kann viel mehr als nur umbenennen!\r\nWenn Sie z.B. viele Dateien heruntergeladen "
    "haben und diese einen einmaligen Dateinamen erhalten sollen, können Sie die Funktion 'Fortlaufende "
    "Dateinamen erstellen' nutzen.",
    "Einen Datei-TAG einzugeben war nie so einfach wie jetzt!\r\nKlicken Sie im TAG-Editor einfach auf 'AutoTAG "
    "einsztellen' und wählen Sie das Format '%Automatik%'. Von jetzt an setzt 'AutoTAG' TAGs intelligent selbst.",
    "Verwenden Sie die Funktion 'Zielordner vorschlagen' im Fenster 'Kopieren/Verschieben', um zu kopierende "
    "Dateien in dem Dateinamen ähnliche Ordner zu kopieren.",
    "Gibt es eine neue Version dieses Programmes?\r\nDas können Sie ganz einfach überprüfen: Klicken Sie im "
    "Hauptfenster auf 'Info' und dann auf die Internet-Adresse!",
    "Sie können schnell eine Indexdatei öffnen, indem Sie im Hauptfenster auf den Dateinamen der Indexdatei "
    "(unter dem Programm-Namen) klicken.",
    "Räumen Sie den Index auf, indem Sie zu prüfende Dateien wählen und auf 'Index-Verwaltung' klicken.",
    "Stellen Sie eine individuelle Musik-Zusammenstellung her!\r\nDer Klangkartei merkt sich, was Sie an Musik "
    "gehört haben, während das Programm lief. Klicken Sie auf 'AutoDJ' und wählen Sie Musik-Genre und klicken Sie "
    "auf 'Weiter'.",
    "Möchten Sie Ihre Datei-Sammlung als Auflistung verschicken oder in Ihre Tabellenkalkulation einfügen?\r\n"
    "Wählen Sie Dateien und klicken Sie auf 'Exportieren'. Diese Datei können Sie dann auch drucken",
    "Dateien von verschiendenen CDs zu verwalten ist nun sehr einfach!\r\nFügen Sie einfach die Dateien einmalig "
    "zum Index hinzu. Wenn nun die CD mal nicht eingelegt ist, werden Sie dazu aufgefordert.",
    "Die Such-Funktion wurde verbessert:\r\nKlicken Sie auf 'Erweiterte Suche'. Hier können Sie mehrere "
    "Such-Abfragen kombinieren und Bedingungen wie 'UND'/'ODER' und 'Muß enthalten'/'Darf nicht enthalten' "
    "setzen.",
    "Sichern Sie Ihre Daten!\r\nIn den 'Optionen' könnnen Sie die automatische Speicherung Ihrer Indexdatei "
    "aktivieren.",
    "Sie verwalten viele Dateien und das Programm ist langsamer geworden?\r\nÄndern Sie in den 'Optionen' die "
    "Einstellungen 'Suche nicht aktualisieren bei...' und 'Auswahlliste für Such-Eingaben erstellen'.",
    "Das Fortschrittsfenster stört Sie?\r\nSchalten Sie dieses in den 'Optionen' einfach aus.",
    "Sie können die Geschwindigkeit des Hinzufügens von Dateien verbessern, indem Sie Einstellungen "
    "ausschalten!\r\nKlicken Sie in den 'Optionen' auf 'Datei-TAGs'.",
    "Nutzen Sie Tastenkombinationen!\r\n[STRG+A] markiert alle Dateien, [ENTF] entfernt einen Index-Eintrag.",
    "Nutzen Sie Tastenkombinationen!\r\n[EINGABE] führt die Standardaktion für eine Datei aus, "
    "[UMSCHALT+EINGABE] leert zuvor die Playliste Ihres Audioplayers (sofern unterstützt).",
    "Ist Ihr Computer an ein Netzwerk angeschlossen?\r\nFügen Sie einfach Dateien über das Netzwerk hinzu und "
    "verwalten Sie diese.",
};

const std::string Willkommen =
    "Willkommen bei Klangkartei!\r\n\r\n"
    "Klangkartei führt eine Kartei über Ihre Musik- und Mediendateien: auf der Festplatte, im Netzwerk und auf "
    "CDs oder anderen Wechselmedien, die nicht immer eingelegt sein müssen.\r\n\r\n"
    "So fangen Sie an: Klicken Sie links auf 'Zum Index hinzufügen' und wählen Sie einen Ordner mit Ihrer Musik. "
    "Danach tippen Sie einfach in das Suchfeld - die Liste zeigt sofort, was passt.\r\n\r\n"
    "Die Kartei wird beim Beenden gespeichert; in den 'Optionen' können Sie auch das automatische Speichern "
    "einschalten.";

const std::string Leer;
}  // namespace

int32_t TippsAnzahl() { return static_cast<int32_t>(Tipps.size()); }

const std::string& TippsTexte(int32_t nummer) {
    if (nummer < 1 || nummer > TippsAnzahl()) return Leer;
    return Tipps[static_cast<size_t>(nummer - 1)];
}

const std::string& WillkommenText() { return Willkommen; }

int32_t TippVor(Kartei& k, int32_t aktuell) {
    const int32_t neu = aktuell < TippsAnzahl() ? aktuell + 1 : 1;
    k.E.TippsAktueller = static_cast<int16_t>(neu);
    return neu;
}

int32_t TippZurück(Kartei& k, int32_t aktuell) {
    const int32_t neu = aktuell > 1 ? aktuell - 1 : TippsAnzahl();
    k.E.TippsAktueller = static_cast<int16_t>(neu);
    return neu;
}

void TippsSchließen(Kartei& k, int32_t aktuell, bool wiederZeigen) {
    if (!wiederZeigen) {
        k.ui.MeldungZeigen("Wenn Sie dieses Fenster wieder sehen möchten, können Sie es in den 'Optionen' wieder "
                           "aktivieren.",
                           Meldung::Information);
        k.E.TippsAktueller = 0;
        return;
    }
    // Ein Wert außerhalb der Hinweise kann nur aus einer kaputten Einstellung stammen.
    k.E.TippsAktueller = static_cast<int16_t>(aktuell >= 1 && aktuell <= TippsAnzahl() ? aktuell : 1);
}
