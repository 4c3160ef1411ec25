#include "intake/ZielordnerVerschieben.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "fileops/Loeschen.h"
#include "fileops/Verschieben.h"

bool InZielordnerVerschieben(Kartei& k, std::string ordner, std::string zielordner, int32_t i) {
    const std::string datei = k.Aufnahme.Suchliste[i];
    if (const std::string vorschlag = NamenBereinigen(zielordner, true); vorschlag != zielordner) {
        KK_TRACE("EinfachOrdnerHinzufügen", "Ordnername ungültig (Vorschlag - " + vorschlag + ")");
        k.ui.MeldungZeigen("Beim Kopieren der Datei '" + datei +
                               "' ist ein Fehler aufgetreten: \nDer Zielordner-Name '" + zielordner +
                               "' enthält ungültige Zeichen.\n\nDie Kopieren-Funktion wurde für diesen Ordner "
                               "deaktiviert. Ändern Sie den Ordner-Namen in den Optionen.",
                           Meldung::Ausrufezeichen);
        return false;
    }
    if (zielordner.back() != '/') zielordner += '/';
    if (ordner.empty() || ordner.back() != '/') ordner += '/';
    // Der Pfad unter dem Ordner kommt unter den Zielordner.
    std::string ziel =
        zielordner + (BeginntMitText(datei, ordner) ? datei.substr(ordner.size()) : DateinameAusPfad(datei));
    std::string fehlertext;
    if (!DateiVerschieben(k, datei, ziel, ModusVerschieben, fehlertext)) {
        return k.ui.MeldungZeigen("Beim Verschieben der Datei '" + datei + "' ist ein Fehler aufgetreten: \n" +
                                      fehlertext + "\n\nMöchten Sie mit weiteren Dateien im aktuellen Ordner ('" +
                                      ordner + "') fortfahren?",
                                  Meldung::JaNeinAusruf) == Meldung::Ja;
    }
    OrdnerLöschenFragen(k, PfadZurückgeben(datei));
    k.Aufnahme.Suchliste[i] = ziel;
    return true;
}
