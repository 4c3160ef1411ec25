#include "ui/SongListe.h"

#include "app/Kartei.h"
#include "index/IndexFeld.h"
#include "app/Ergebnisliste.h"
#include "ui/Umrechnung.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QHeaderView>
#include <QMimeData>
#include <QUrl>

// ---------------------------------------------------------------- Modell

ErgebnislisteModell::ErgebnislisteModell(const Kartei& k, Ergebnisliste& liste, QObject* eltern)
    : QAbstractTableModel(eltern), k_(k), liste_(liste) {}

int ErgebnislisteModell::rowCount(const QModelIndex& eltern) const { return eltern.isValid() ? 0 : zeilen_; }

int ErgebnislisteModell::columnCount(const QModelIndex& eltern) const {
    return eltern.isValid() ? 0 : static_cast<int>(spaltenNummern_.size());
}

int32_t ErgebnislisteModell::Eintrag(int zeile) const {
    if (zeile < 0 || static_cast<size_t>(zeile) >= liste_.zeilen.size()) return 0;
    return liste_.zeilen[static_cast<size_t>(zeile)].eintrag;
}

QVariant ErgebnislisteModell::data(const QModelIndex& index, int rolle) const {
    if (rolle != Qt::DisplayRole || !index.isValid()) return {};
    const auto spalte = static_cast<size_t>(index.column());
    const int32_t eintrag = Eintrag(index.row());
    // Während ein langer Vorgang die Tabelle umbaut, kann die Zeile schon ins Leere zeigen.
    if (spalte >= spaltenNummern_.size() || eintrag < 1 || eintrag > k_.DateiAnzahl) return {};
    thread_local std::string text;
    int16_t art = 0;
    // Die Liste zeigt die Anzeigeform (Datum "tt.mm.jjjj"), wie die Suche sie vergleicht.
    if (!IndexFeldZurückgeben(k_, eintrag, spaltenNummern_[spalte], false, text, art)) return {};
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QVariant ErgebnislisteModell::headerData(int abschnitt, Qt::Orientation richtung, int rolle) const {
    if (richtung != Qt::Horizontal || rolle != Qt::DisplayRole) return {};
    if (abschnitt < 0 || static_cast<size_t>(abschnitt) >= köpfe_.size()) return {};
    return köpfe_[static_cast<size_t>(abschnitt)];
}

Qt::ItemFlags ErgebnislisteModell::flags(const QModelIndex& index) const {
    if (!index.isValid()) return Qt::ItemIsDropEnabled;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled;
}

bool ErgebnislisteModell::Abgleichen() {
    std::vector<int32_t> nummern;
    std::vector<QString> köpfe;
    for (const auto& s : liste_.spalten) {
        nummern.push_back(s.spalte);
        köpfe.push_back(Q(s.kopf));
    }
    const int neu = static_cast<int>(liste_.zeilen.size());
    if (nummern != spaltenNummern_ || köpfe != köpfe_) {
        beginResetModel();
        spaltenNummern_ = std::move(nummern);
        köpfe_ = std::move(köpfe);
        zeilen_ = neu;
        endResetModel();
        return true;
    }
    // Vorhandene Zeilen bleiben stehen (die Ansicht springt nicht), nur das Ende ändert sich.
    if (neu > zeilen_) {
        beginInsertRows({}, zeilen_, neu - 1);
        zeilen_ = neu;
        endInsertRows();
    } else if (neu < zeilen_) {
        beginRemoveRows({}, neu, zeilen_ - 1);
        zeilen_ = neu;
        endRemoveRows();
    }
    if (zeilen_ > 0 && !spaltenNummern_.empty())
        emit dataChanged(index(0, 0), index(zeilen_ - 1, static_cast<int>(spaltenNummern_.size()) - 1),
                         {Qt::DisplayRole});
    return false;
}

// ---------------------------------------------------------------- Ansicht

SongListeAnsicht::SongListeAnsicht(Kartei& k, QWidget* eltern) : QTableView(eltern), k_(k) {
    setObjectName(QStringLiteral("lstSongs"));
    modell_ = new ErgebnislisteModell(k, k.Liste.lstSongs, this);
    setModel(modell_);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSortingEnabled(false);
    setWordWrap(false);
    setAlternatingRowColors(false);
    setTabKeyNavigation(false);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDragDropMode(QAbstractItemView::DragDrop);
    setDefaultDropAction(Qt::CopyAction);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    // Gleich hohe Zeilen: die Ansicht rechnet dann nicht jede Zeile aus.
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, &SongListeAnsicht::AuswahlZurückschreiben);
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int spalte) {
        if (!abgleichen_) emit spalteGeklickt(spalte);
    });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int spalte, int, int neu) {
        if (abgleichen_) return;
        auto& s = k_.Liste.lstSongs.spalten;
        if (spalte >= 0 && static_cast<size_t>(spalte) < s.size())
            s[static_cast<size_t>(spalte)].breite = PixelZuTwips(neu);
        emit spaltenNeu();
    });
    connect(horizontalHeader(), &QHeaderView::sectionMoved, this, [this] {
        if (!abgleichen_) SpalteVerschoben();
    });
}

void SongListeAnsicht::FarbenSetzen(const QColor& text, const QColor& hintergrund) {
    QPalette p = palette();
    p.setColor(QPalette::Text, text);
    p.setColor(QPalette::Base, hintergrund);
    setPalette(p);
}

void SongListeAnsicht::Abgleichen() {
    auto& liste = k_.Liste.lstSongs;
    abgleichen_ = true;
    // Unverändert: nichts neu zeichnen (jede Taste im Suchfeld kommt hier vorbei).
    if (liste.version != version_) {
        version_ = liste.version;
        if (modell_->Abgleichen()) SpaltenBreitenÜbernehmen();
        AuswahlÜbernehmen();
    }
    horizontalHeader()->setVisible(liste.kopfleiste);
    setShowGrid(liste.gitter);
    if (liste.sichtbareZeile >= 0 && liste.sichtbareZeile < modell_->rowCount()) {
        scrollTo(modell_->index(liste.sichtbareZeile, 0));
        liste.sichtbareZeile = -1;  // erledigt
    }
    abgleichen_ = false;
}

void SongListeAnsicht::SpaltenBreitenÜbernehmen() {
    const auto& s = k_.Liste.lstSongs.spalten;
    for (size_t i = 0; i < s.size(); ++i)
        horizontalHeader()->resizeSection(static_cast<int>(i), TwipsZuPixel(s[i].breite));
}

// Die Person hat eine Spalte verschoben: die Ergebnisliste bekommt die neue Reihenfolge, die
// Ansicht zeigt danach wieder Spalte i an Stelle i.
void SongListeAnsicht::SpalteVerschoben() {
    auto& s = k_.Liste.lstSongs.spalten;
    QHeaderView* kopf = horizontalHeader();
    std::vector<ListenSpalte> neu;
    for (int sichtbar = 0; sichtbar < kopf->count(); ++sichtbar) {
        const int logisch = kopf->logicalIndex(sichtbar);
        if (logisch >= 0 && static_cast<size_t>(logisch) < s.size()) neu.push_back(s[static_cast<size_t>(logisch)]);
    }
    if (neu.size() != s.size()) return;
    abgleichen_ = true;
    for (int i = 0; i < kopf->count(); ++i) kopf->moveSection(kopf->visualIndex(i), i);
    s = std::move(neu);
    k_.Liste.lstSongs.Geändert();
    version_ = k_.Liste.lstSongs.version;
    modell_->Abgleichen();
    SpaltenBreitenÜbernehmen();
    abgleichen_ = false;
    emit spaltenNeu();
}

// Die Auswahl der Ergebnisliste in die Ansicht: zusammenhängende Zeilen als ein Bereich.
void SongListeAnsicht::AuswahlÜbernehmen() {
    const auto& zeilen = k_.Liste.lstSongs.zeilen;
    const int spalten = modell_->columnCount();
    QItemSelection auswahl;
    const int n = std::min(static_cast<int>(zeilen.size()), modell_->rowCount());
    for (int i = 0; i < n && spalten > 0;) {
        if (!zeilen[static_cast<size_t>(i)].ausgewählt) {
            ++i;
            continue;
        }
        int ende = i;
        while (ende + 1 < n && zeilen[static_cast<size_t>(ende + 1)].ausgewählt) ++ende;
        auswahl.append(QItemSelectionRange(modell_->index(i, 0), modell_->index(ende, spalten - 1)));
        i = ende + 1;
    }
    const bool vorher = abgleichen_;
    abgleichen_ = true;
    selectionModel()->select(auswahl, QItemSelectionModel::ClearAndSelect);
    abgleichen_ = vorher;
}

void SongListeAnsicht::AuswahlZurückschreiben(const QItemSelection& gewählt, const QItemSelection& abgewählt) {
    if (abgleichen_) return;
    auto& zeilen = k_.Liste.lstSongs.zeilen;
    auto setzen = [&](const QItemSelection& bereiche, bool wert) {
        for (const auto& b : bereiche)
            for (int z = b.top(); z <= b.bottom(); ++z)
                if (z >= 0 && static_cast<size_t>(z) < zeilen.size()) zeilen[static_cast<size_t>(z)].ausgewählt = wert;
    };
    // Ein Bereich kann in beiden stehen (Spalten wechseln): erst ab-, dann anwählen.
    setzen(abgewählt, false);
    setzen(gewählt, true);
    emit auswahlNeu();
}

void SongListeAnsicht::keyPressEvent(QKeyEvent* ereignis) {
    const bool strg = ereignis->modifiers() & Qt::ControlModifier;
    if (strg) {
        ShiftGedrückt = true;
        if (ereignis->key() == Qt::Key_A) {
            emit strgA();
            return;
        }
    } else {
        ShiftGedrückt = ereignis->modifiers() & Qt::ShiftModifier;
    }
    switch (ereignis->key()) {
    case Qt::Key_Delete: emit entfTaste(); return;
    case Qt::Key_Return:
    case Qt::Key_Enter: emit doppelklick(); return;
    default: QTableView::keyPressEvent(ereignis);
    }
}

void SongListeAnsicht::keyReleaseEvent(QKeyEvent* ereignis) {
    QTableView::keyReleaseEvent(ereignis);
    emit auswahlNeu();
}

void SongListeAnsicht::mouseReleaseEvent(QMouseEvent* ereignis) {
    QTableView::mouseReleaseEvent(ereignis);
    if (ereignis->button() == Qt::RightButton) emit rechtsklick(ereignis->globalPosition().toPoint());
}

void SongListeAnsicht::mouseDoubleClickEvent(QMouseEvent* ereignis) {
    if (ereignis->button() == Qt::LeftButton && indexAt(ereignis->position().toPoint()).isValid()) {
        emit doppelklick();
        return;
    }
    QTableView::mouseDoubleClickEvent(ereignis);
}

QStringList SongListeAnsicht::GewähltePfade() const {
    QStringList pfade;
    for (const auto& z : k_.Liste.lstSongs.zeilen)
        if (z.ausgewählt && z.eintrag >= 1 && z.eintrag <= k_.DateiAnzahl) pfade << Q(k_.DateiPfade[z.eintrag]);
    return pfade;
}

// Ziehen aus der Liste: die Pfade der gewählten Einträge als Dateiliste, nur zum Kopieren.
void SongListeAnsicht::startDrag(Qt::DropActions) {
    const QStringList pfade = GewähltePfade();
    if (pfade.isEmpty()) return;
    QList<QUrl> urls;
    for (const auto& p : pfade) urls << QUrl::fromLocalFile(p);
    auto* daten = new QMimeData;
    daten->setUrls(urls);
    auto* ziehen = new QDrag(this);
    ziehen->setMimeData(daten);
    ziehen->exec(Qt::CopyAction, Qt::CopyAction);
}

// Genau die gewählten Dateien in derselben Reihenfolge: die Liste auf sich selbst gezogen.
bool SongListeAnsicht::IstEigeneAuswahl(const QList<QUrl>& urls) const {
    const QStringList pfade = GewähltePfade();
    if (pfade.size() != urls.size()) return false;
    for (qsizetype i = 0; i < urls.size(); ++i)
        if (urls[i].toLocalFile() != pfade[i]) return false;
    return true;
}

void SongListeAnsicht::dragEnterEvent(QDragEnterEvent* ereignis) {
    if (!ereignis->mimeData()->hasUrls() || IstEigeneAuswahl(ereignis->mimeData()->urls())) {
        ereignis->ignore();
        return;
    }
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
}

void SongListeAnsicht::dragMoveEvent(QDragMoveEvent* ereignis) {
    if (!ereignis->mimeData()->hasUrls() || IstEigeneAuswahl(ereignis->mimeData()->urls())) {
        ereignis->ignore();
        return;
    }
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
}

void SongListeAnsicht::dropEvent(QDropEvent* ereignis) {
    const QMimeData* daten = ereignis->mimeData();
    if (!daten->hasUrls() || IstEigeneAuswahl(daten->urls())) {
        ereignis->ignore();
        return;
    }
    QStringList pfade;
    for (const QUrl& url : daten->urls())
        if (url.isLocalFile()) pfade << url.toLocalFile();
    ereignis->setDropAction(Qt::CopyAction);
    ereignis->accept();
    if (!pfade.isEmpty()) emit dateienFallengelassen(pfade);
}
