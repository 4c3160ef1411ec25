#pragma once
// Der Weg zur Indexdatei auf der Platte: Verknüpfungen auflösen, die Art der Datei prüfen, die
// Sperre gegen ein zweites Programm und der Stand der Datei beim Laden.
#include <cstdint>
#include <string>

struct Kartei;

// Größe, Zeit und Identität einer Datei; daran erkennt das Speichern fremde Änderungen.
struct IndexDateiStand {
    bool bekannt = false;
    std::string ziel;  // aufgelöster Pfad
    uint64_t gerät = 0, knoten = 0;
    int64_t größe = 0, zeitNs = 0;
    bool operator==(const IndexDateiStand&) const = default;
};

// Eine gehaltene flock-Sperre; wird mit dem Objekt gelöst.
class IndexSperre {
public:
    IndexSperre() = default;
    ~IndexSperre() { Lösen(); }
    IndexSperre(IndexSperre&& andere) noexcept { *this = std::move(andere); }
    IndexSperre& operator=(IndexSperre&& andere) noexcept;
    IndexSperre(const IndexSperre&) = delete;
    IndexSperre& operator=(const IndexSperre&) = delete;

    // Übernimmt den offenen, schon gesperrten Deskriptor fd.
    void Übernehmen(int fd, bool exklusiv);
    void Lösen();
    bool Gehalten() const { return fd_ >= 0; }
    bool Exklusiv() const { return exklusiv_; }
    // Gilt die Sperre noch der Datei, die jetzt unter ziel steht?
    bool GiltFür(const std::string& ziel) const;

private:
    int fd_ = -1;
    bool exklusiv_ = false;
};

struct IndexDateiZugriff {
    IndexDateiStand geladen;     // Stand der Datei beim letzten Laden bzw. Speichern
    IndexSperre sperre;          // eine über den Ladevorgang hinaus gehaltene Sperre
    bool SperreHalten = false;   // Kommandozeile: die Sperre vom Laden bis zum Ende halten
    bool NichtsGeladen = false;  // Laden abgelehnt oder unmöglich: dann wird nichts gespeichert
};

// Löst Verknüpfungen auf (auch eine, deren Ziel noch fehlt); sonst pfad selbst.
std::string IndexZielAuflösen(const std::string& pfad);

// Art der Datei unter ziel (ohne Verknüpfungen): 'f' Datei, 'd' Ordner, 'p' FIFO, 'g' Gerät,
// 's' sonstiges, '-' fehlt, '!' nicht prüfbar (fehler = errno).
char DateiArtLesen(const std::string& ziel, int& fehler);
// "ein Ordner", "eine benannte Pipe (FIFO)", … für Meldungen.
std::string DateiArtText(char art);

// Stand der Datei jetzt (bekannt = false, wenn sie fehlt).
IndexDateiStand IndexDateiStandLesen(const std::string& ziel);

// Sperrt die Datei unter ziel (geteilt zum Lesen, exklusiv zum Schreiben). Wartet, solange ein
// anderes Programm sie hält: mit Fortschrittsfenster und "Abbrechen", höchstens eine Minute.
// false: abgebrochen, Zeit um oder Fehler (Meldung gezeigt, außer bei Abbruch).
bool IndexDateiSperren(Kartei& k, const std::string& ziel, const std::string& pfad, bool exklusiv, IndexSperre& sperre);
