#pragma once
// Ein Feld eines Eintrags als Text, nach Spaltennamen: für Anzeige, Suche, Sortieren,
// Umbenennen und Export. Die Art sagt dem Sortieren, wie es vergleichen soll.
#include <cstdint>
#include <string>
#include <string_view>

struct Kartei;

// Art des Wertes.
namespace IndexFeldArt {
constexpr int16_t Text = 0, Zahl = 1, Datum = 2, DatumZeit = 3, Dauer = 4;
}

// Kennung eines Feldes; 1..30 sind die Spaltennummern der Spaltentabelle.
enum class IndexFeldKennung : uint8_t {
    Unbekannt = 0,
    Nummer = 1,
    Pfad,
    Dateiname,
    Interpret,
    Titel,
    Album,
    Jahr,
    Track,
    Genre,
    Kommentar,
    Größe,
    Bitrate,
    Dauer,
    Frequenz,
    Frames,
    Wechselmedium,
    HinzufügeDatum,
    PfadDateiname,
    Benutzerdefiniert,
    AbspielDatum,
    AbspielHäufigkeit,
    InterpretV2,
    TitelV2,
    AlbumV2,
    JahrV2,
    TrackV2,
    GenreV2,
    KommentarV2,
    TagVersionV2,
    TagGrößeV2 = 30,
    Titelnummer,
    DateiEndung,
    Standardsuche,
    Muster,
};

// Ein einmal erkannter Feldname; bei Muster ("%…") steht das Muster dabei.
struct IndexFeld {
    IndexFeldKennung kennung = IndexFeldKennung::Unbekannt;
    std::string muster;
};
// Erkennt einen Feldnamen (genau, Groß/Klein zählt): Spaltenname, "Titelnummer",
// "Datei-Endung", "(Standardsuche)" oder ein Muster, das mit "%" beginnt.
IndexFeld IndexFeldVorbereiten(std::string_view feld);
// Das Feld der Spalte 1..30 der Spaltentabelle.
IndexFeld IndexFeldFürSpalte(int32_t spalte);

// Wert des Feldes für Eintrag nummer. modus "1" verlangt die sortierbare Form der Daten,
// alles andere die Anzeigeform. ergebnis wird überschrieben (seine Kapazität bleibt), leer, wenn es
// keinen Wert gibt. false bei unbekanntem Feld oder einer Nummer außerhalb der Tabelle.
bool IndexFeldZurückgeben(const Kartei& k, int32_t nummer, std::string_view feld, std::string_view modus,
                          std::string& ergebnis, int16_t& art);
// Dasselbe mit vorab erkanntem Feld (Suchen und Sortieren über viele Einträge).
// tiefe zählt geschachtelte Muster; nur DateinamenFormatieren gibt sie weiter.
bool IndexFeldZurückgeben(const Kartei& k, int32_t nummer, const IndexFeld& feld, bool sortierForm,
                          std::string& ergebnis, int16_t& art, int32_t tiefe = 0);
// Der Text eines Feldes ohne Kopie, wo er unverändert im Datensatz oder im Pfad steht
// (Tag-Felder, Dateiname in gültigem UTF-8); sonst false. Gleicher Text wie IndexFeldZurückgeben.
bool IndexFeldSicht(const Kartei& k, int32_t nummer, const IndexFeld& feld, std::string_view& sicht);
// Dasselbe für eine Spalte 1..30 der Spaltentabelle.
bool IndexFeldZurückgeben(const Kartei& k, int32_t nummer, int32_t spalte, bool sortierForm, std::string& ergebnis,
                          int16_t& art);
