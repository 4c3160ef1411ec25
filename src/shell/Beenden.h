#pragma once
// Schließen des Hauptfensters: ob das Programm endet, sich verkleinert, in den Infobereich geht
// oder fragt (frmBeenden); vor dem Ende und vor dem Wechsel des Index wird ein geänderter Index
// gesichert.
#include <cstdint>

struct Kartei;

// Warum das Fenster schließen soll.
enum class SchließGrund { Benutzer, Sitzungsende, Taskverwaltung };

// Was das Fenster von sich weiß.
struct FensterLage {
    bool versteckt = false;
    bool minimiert = false;
    bool endeErzwungen = false;  // Tag "1": das Menü des Infobereichs will das Ende
    bool trayVorhanden = false;  // ohne Symbol im Infobereich wird dorthin nicht versteckt
};

enum class BeendenSchritt {
    Weiter,      // weiter zum Sichern und Ende
    Fragen,      // frmBeenden zeigen, dann BeendenAuswahlAnwenden
    Minimieren,  // Schließen abbrechen, Fenster verkleinern
    InTray,      // Schließen abbrechen, Fenster verstecken
    Abbrechen,   // Schließen abbrechen
};

// Werte von BeendenReaktion und BeendenAuswahl.
namespace Beenden {
constexpr int16_t Fragen = 0, Abbrechen = 0, Minimieren = 1, Ende = 2, Tray = 3;
}

// BeendenReaktion anwenden (nicht beim Ende der Sitzung oder durch die Taskverwaltung).
BeendenSchritt BeendenReaktionPrüfen(const Kartei& k, SchließGrund grund, const FensterLage& lage);
// Nach frmBeenden: 0 bricht ab, 1 wie Minimieren, 3 wie Infobereich, 2 geht weiter.
BeendenSchritt BeendenAuswahlAnwenden(int16_t BeendenAuswahl, const FensterLage& lage);
// Ein Knopf von frmBeenden: mit "Immer" merkt sich BeendenReaktion die Wahl, ohne wieder 0
// (fragen). Abbrechen (0) lässt BeendenReaktion, wie es ist. Ergebnis: BeendenAuswahl.
int16_t BeendenKnopfGedrückt(Kartei& k, int16_t auswahl, bool immer);

// Vor dem Ende oder dem Wechsel des Index: ein geänderter Index wird gespeichert (mit
// DateiAutomatischSpeichern 1 ohne Frage) oder die Person gefragt. false heißt bleiben: sie hat
// abgebrochen oder das Speichern ist misslungen, damit nichts verloren geht.
bool GeändertenIndexSichern(Kartei& k);
// Endet die Sitzung, ohne dass Fragen erlaubt sind, bliebe nur ungefragt speichern oder
// verwerfen: dann bleibt das Programm (false), außer nichts ist zu sichern oder es speichert
// ohnehin automatisch.
bool SitzungsEndeOhneFrageMöglich(const Kartei& k);
// cmdOk von frmIndexÖffnen: die Spalten der Liste übernehmen, dann GeändertenIndexSichern.
bool IndexWechselVorbereiten(Kartei& k);
