#pragma once
// Alle, keine oder umgekehrt: die Wahlknöpfe unter den Listen der Dialoge.
#include <QListWidget>

enum class ListenWahl { Alle, Keine, Umkehren };

inline void ListeWählen(QListWidget* liste, ListenWahl wie) {
    for (int i = 0; i < liste->count(); ++i) {
        QListWidgetItem* z = liste->item(i);
        z->setSelected(wie == ListenWahl::Alle || (wie == ListenWahl::Umkehren && !z->isSelected()));
    }
}
