#pragma once
// Tötet einen schreibenden Prozess (SIGKILL) zu zufälligen Zeitpunkten und prüft danach, was auf
// der Platte steht: immer genau der alte oder der neue Inhalt, nie etwas dazwischen.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// Ein Vorgang, der den Inhalt zwischen zwei Zuständen hin und her schaltet (A → B → A …). Er läuft
// in einem eigenen Prozess, ruft AbsturzSchreibenBeginnt() unmittelbar vor dem Schreiben auf und
// gibt true zurück, wenn alles gelang.
using AbsturzVorgang = std::function<bool()>;
// Meldet dem wartenden Elternprozess, dass das Schreiben jetzt beginnt (ohne Elternprozess: nichts).
void AbsturzSchreibenBeginnt();

struct AbsturzBericht {
    int schüsse = 0;
    int getötet = 0;                  // SIGKILL traf den Vorgang mitten im Schreiben
    int vorherFertig = 0;             // der Vorgang war schon fertig, als der Schuss kam
    int alt = 0, neu = 0;             // danach stand der Zustand A bzw. B auf der Platte
    int zwischen = 0;                 // ein erlaubter Zwischenstand (siehe zwischenZulässig)
    int64_t schreibenUs = 0;          // Dauer eines ungestörten Schreibens bis zur Rückkehr (Spanne der Zeitpunkte)
    std::vector<std::string> fehler;  // leer, wenn alles stimmte
};

// Lässt vorgang dreimal ungestört laufen (→ A → B → A, misst dabei die Schreibdauer) und dann
// schüsse Mal, jeweils mit SIGKILL zu einem gleichverteilten Zeitpunkt im Schreiben. Nach jedem
// Lauf muss inhalt() genau A oder B sein, oder ein Stand, den zwischenZulässig annimmt (etwa eine
// verschobene Datei, die der Index erst beim nächsten Abgleich nennt); ein Vorgang, der nicht
// getötet wurde, muss gelingen.
AbsturzBericht AbsturzProben(const AbsturzVorgang& vorgang, const std::function<std::string()>& inhalt, int schüsse,
                             uint32_t saat, const std::function<bool(const std::string&)>& zwischenZulässig = {});

// Der Vorgang für die Indexdatei pfad: laden (wie ein Programmstart), einen Eintrag
// "/umschalten.mp3" anhängen oder wieder wegnehmen und speichern.
AbsturzVorgang IndexUmschalten(const std::string& pfad);
