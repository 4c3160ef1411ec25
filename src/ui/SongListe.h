#pragma once
// lstSongs: eine Tabellenansicht über die Ergebnisliste des Kerns. Das Modell rechnet die
// Zellentexte erst beim Zeichnen aus (IndexFeldZurückgeben), eine Million Zeilen kosten also kein
// Widget. Die Auswahl der Person wird in die Ergebnisliste zurückgeschrieben; sortiert wird nur
// über den Kern (Klick auf einen Spaltenkopf).
#include <QAbstractTableModel>
#include <QPointer>
#include <QTableView>

#include <cstdint>
#include <vector>

struct Kartei;
struct Ergebnisliste;

class ErgebnislisteModell final : public QAbstractTableModel {
    Q_OBJECT
public:
    ErgebnislisteModell(const Kartei& k, Ergebnisliste& liste, QObject* eltern);

    int rowCount(const QModelIndex& eltern = {}) const override;
    int columnCount(const QModelIndex& eltern = {}) const override;
    QVariant data(const QModelIndex& index, int rolle) const override;
    QVariant headerData(int abschnitt, Qt::Orientation richtung, int rolle) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    // Nach einer Änderung der Ergebnisliste: Zeilen anhängen oder abschneiden, Spalten neu,
    // sichtbare Texte neu. true, wenn sich die Spalten geändert haben.
    bool Abgleichen();
    // Eintragsnummer der Zeile, 0 außerhalb.
    int32_t Eintrag(int zeile) const;

private:
    const Kartei& k_;
    Ergebnisliste& liste_;
    int zeilen_ = 0;
    std::vector<int32_t> spaltenNummern_;  // Nummer in der Spaltentabelle je Spalte
    std::vector<QString> köpfe_;
};

class SongListeAnsicht final : public QTableView {
    Q_OBJECT
public:
    SongListeAnsicht(Kartei& k, QWidget* eltern);
    SongListeAnsicht(const SongListeAnsicht&) = delete;
    SongListeAnsicht& operator=(const SongListeAnsicht&) = delete;

    ErgebnislisteModell* Modell() const { return modell_; }
    // Übernimmt, was der Kern an der Liste geändert hat: Zeilen, Spalten und Breiten, Auswahl,
    // Kopfleiste, Gitter, die Zeile, die ins Bild soll.
    void Abgleichen();
    // Farben der Liste (FarbeListen, FarbeListenHintergrund).
    void FarbenSetzen(const QColor& text, const QColor& hintergrund);

    bool ShiftGedrückt = false;  // von der Tastatur der Liste; Abspielen leert dann die Playliste

signals:
    void auswahlNeu();                       // die Auswahlflaggen der Ergebnisliste haben sich geändert
    void spalteGeklickt(int spalte);         // Spaltenkopf, 0-basiert in Anzeigereihenfolge
    void entfTaste();                        // Entf
    void doppelklick();                      // Doppelklick oder Eingabe
    void strgA();                            // Strg+A
    void rechtsklick(const QPoint& global);  // rechte Maustaste losgelassen
    void dateienFallengelassen(const QStringList& pfade);
    void spaltenNeu();  // Breite oder Reihenfolge von Hand geändert

protected:
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;
    void keyPressEvent(QKeyEvent* ereignis) override;
    void keyReleaseEvent(QKeyEvent* ereignis) override;
    void mouseReleaseEvent(QMouseEvent* ereignis) override;
    void mouseDoubleClickEvent(QMouseEvent* ereignis) override;
    void startDrag(Qt::DropActions aktionen) override;
    void dragEnterEvent(QDragEnterEvent* ereignis) override;
    void dragMoveEvent(QDragMoveEvent* ereignis) override;
    void dropEvent(QDropEvent* ereignis) override;

private:
    void AuswahlZurückschreiben(const QItemSelection& gewählt, const QItemSelection& abgewählt);
    void AuswahlÜbernehmen();
    void SpaltenBreitenÜbernehmen();
    void SortierPfeilSetzen();
    void SpalteVerschoben();
    bool IstEigeneAuswahl(const QList<QUrl>& urls) const;
    QStringList GewähltePfade() const;

    Kartei& k_;
    ErgebnislisteModell* modell_;
    QPointer<QWidget> fokusVorKlick_;  // hatte den Fokus, bis der Klick ihn der Liste gab
    bool abgleichen_ = false;          // Signale der Ansicht gehen dann nicht in die Liste zurück
    uint64_t version_ = ~uint64_t{0};  // zuletzt übernommener Stand der Ergebnisliste
};
