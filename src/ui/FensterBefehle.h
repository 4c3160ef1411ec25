#pragma once
// Die Befehle des Hauptfensters: je Befehl genau eine QAction mit dem Namen des Steuerelements.
// Der Verweis der linken Spalte, die Menüs, das Kontextmenü und die Tasten der Liste lösen alle
// dieselbe Aktion aus; was sie tut, steht in einer Elementfunktion von frmMain.
class QAction;

struct FensterBefehle {
    // Index
    QAction* cmdIndexErstellen = nullptr;
    QAction* cmdListeAufräumen = nullptr;
    QAction* cmdIndexVerwaltung = nullptr;
    QAction* cmdIndexStatistik = nullptr;
    QAction* cmdAutoDJ = nullptr;
    QAction* cmdAuswählen = nullptr;
    // Gewählte Dateien (nur mit Auswahl sichtbar)
    QAction* cmdEintragAbspielen = nullptr;
    QAction* cmdAnhängen = nullptr;
    QAction* cmdEintragAusführen = nullptr;
    QAction* cmdEintragAusführenMit = nullptr;
    QAction* cmdMp3TagAnzeigen = nullptr;
    QAction* cmdExportieren = nullptr;
    QAction* cmdDateiEntfernen = nullptr;
    QAction* cmdDateienLöschen = nullptr;
    QAction* cmdDateienKopierenVerschieben = nullptr;
    QAction* cmdUmbenennen = nullptr;
    // Programm
    QAction* cmdOptionen = nullptr;
    QAction* cmdHilfe = nullptr;
    QAction* cmdInfo = nullptr;
    QAction* cmdBeenden = nullptr;
    // Suche
    QAction* cmdSucheLöschen = nullptr;
    QAction* cmdSucheMehr = nullptr;
    // Auswahlhilfen (Menü "Auswählen", Strg+A)
    QAction* mnu_wählealle = nullptr;
    QAction* mnu_wählekeine = nullptr;
    QAction* mnu_wähleumkehren = nullptr;
    QAction* mnu_wähleabhier = nullptr;
    QAction* mnu_wählebishier = nullptr;
};
