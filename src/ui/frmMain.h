#pragma once
// Das Hauptfenster: links die Befehle, oben Index und Auswahl, die Suche und die Ergebnisliste.
// Es verdrahtet nur: jede Arbeit tut der Kern. Aufgeteilt auf frmMain.cpp (Aufbau, Anzeige),
// frmMainBefehle.cpp (Befehle und Menüs), frmMainSuche.cpp (Suchfeld, tmrListe),
// frmMainAufnahme.cpp (Hinzufügen, Ablegen, Entfernen) und frmMainSchliessen.cpp (Schließen,
// Index wechseln).
#include "app/EinsBasiert.h"
#include "shell/TitelNachricht.h"
#include "ui/FensterBefehle.h"

#include <QMainWindow>
#include <QPointer>

#include <string>
#include <utility>
#include <vector>

struct FensterLage;
struct Kartei;
struct MenüZustand;
enum class TrayAktion;
enum class SongSuche;
class GuiOberfläche;
class KlickLabel;
class LinkLabel;
class LinkeSpalte;
class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QStringListModel;
class QSystemTrayIcon;
class QTimer;
class SongListeAnsicht;
class SpielerTafel;

class frmMain final : public QMainWindow {
public:
    // standardIndex: der Index, den IndexÖffnen bei leerem Dateiname lädt.
    frmMain(Kartei& k, GuiOberfläche& ui, std::string standardIndex, QWidget* eltern = nullptr);
    ~frmMain() override;
    frmMain(const frmMain&) = delete;
    frmMain& operator=(const frmMain&) = delete;

    // IndexÖffnen mit den Schritten des Fensters: Suche und Liste an oder aus, Name des Index.
    bool IndexÖffnen();
    // Die Farben der Einstellungen auf alle Teile des Fensters.
    void FarbenAnwenden();
    // Die Liste zeigt, was der Kern in k.Liste.lstSongs hinterlegt hat.
    void ListeAnzeigen();
    void AuswahlBeschreibungAnzeigen();
    void TitelNachrichtZeigen(const std::string& text, int32_t verzögerungMs);
    // Fokus ins Suchfeld, wenn es eingeschaltet ist.
    void SuchfeldFokussieren();
    // tmrScrollUpdate einschalten (Programmstart).
    void ZeitgeberStarten();
    // Das Fenster während eines Fortschritts sperren (nur Schließen bleibt verweigert).
    void Sperren(bool gesperrt);
    // Zentrieren (erster Start), gespeicherte Lage in Twips anwenden, maximieren; dann zeigen.
    void FensterLageAnwenden(bool zentrieren, bool geometrie, bool maximieren);
    // Die Befehle des Fensters (Verweise, Menüs, Tasten lösen dieselben Aktionen aus).
    const FensterBefehle& Befehle() const { return befehle_; }

    // Das Symbol im Infobereich einrichten (einmal); anzeigen: ob der Desktop einen Infobereich
    // hat. Ohne ihn gibt es kein Symbol und "In den Infobereich" verkleinert nur.
    void TrayIconHinzufügen(bool anzeigen);
    QSystemTrayIcon* TrayIcon() const { return tray_; }
    // Das Ende der Sitzung: ohne frmBeenden, aber mit der Frage nach dem geänderten Index.
    // fragenErlaubt: die Sitzung lässt Fragen zu. false: das Programm bleibt (Sitzungsende abbrechen).
    bool SitzungBeenden(bool fragenErlaubt);

    SongListeAnsicht* lstSongs() const { return lstSongs_; }
    bool ShiftGedrückt() const;

protected:
    void closeEvent(QCloseEvent* ereignis) override;
    bool eventFilter(QObject* objekt, QEvent* ereignis) override;

private:
    void AufbauOben(QWidget* rechts);
    void AufbauSuche(QWidget* rechts);
    void MenüsAufbauen();
    void Verbinden();
    void IndexAnzeigen(bool geladen);
    void TitelSchrittAnwenden(const TitelSchritt& s);
    void tmrScrollUpdate_Timer();

    // Befehle (frmMainBefehle.cpp)
    void BefehleAnlegen();
    void NichtEingebaut();
    void cmdAuswählen_Click();
    void cmdBeenden_Click();
    void cmdIndexStatistik_Click();
    void cmdIndexVerwaltung_Click();
    void cmdExportieren_Click();
    void cmdOptionen_Click();
    void cmdMp3TagAnzeigen_Click();
    void cmdAutoDJ_Click();
    void mnu_wählealle_Click();
    void mnu_wählekeine_Click();
    void mnu_wähleumkehren_Click();
    void mnu_wähleabhier_Click();
    void mnu_wählebishier_Click();
    void lstSongs_DblClick();
    void lstSongs_KontextMenü(const QPoint& global);
    void MenüZustandSetzen(bool NurTitel);
    void Auswahlhelfer(void (*helfer)(struct Ergebnisliste&));
    void SongSucheAusführen(SongSuche art);
    void mnu_song_zwischenablage_Click();
    void AuswahlAktualisierenUndZeigen();

    // Aufnahme (frmMainAufnahme.cpp)
    void cmdIndexErstellen_Click();
    void DateienFallengelassen(const QStringList& pfade);
    void cmdDateiEntfernen_Click();

    // Dateien (frmMainDateien.cpp)
    std::vector<int32_t> GewählteEinträge();  // die Auswahl, frisch aus der Liste gelesen
    void cmdDateienKopierenVerschieben_Click();
    void cmdUmbenennen_Click();
    void cmdDateienLöschen_Click();
    void cmdListeAufräumen_Click();

    // Suche (frmMainSuche.cpp)
    // Die Auswahl, wie AuswahlAktualisieren sie aus der Liste liest.
    const EinsBasiert<int32_t>& AusgewählteDateien() const;
    int32_t AusgewähltAnzahl() const;
    void AuswahlAktualisieren();
    std::string DateiAnzahlText() const;  // lblDateiAnzahl
    void VerbindenSuche();
    void SuchfelderAnzeigen();
    void SucheNachlauf();
    void txtSongname_Change(const QString& text);
    void tmrListe_Timer();
    void cboSuche_Click(int index);
    void cmdSucheLöschen_Click();
    void cmdSucheMehr_Click();
    void lstSongs_ColumnClick(int spalte);
    void SucheStarten(int feld, const std::string& text);
    // Suche wie nach dem Start: erstes Feld, leerer Text, Vorschläge des Index; sucht nicht.
    void SucheVorbereiten();

    // Spieler (frmMainSpieler.cpp)
    void SpielerAufbauen();
    EinsBasiert<int32_t> Gewählte() const;  // die gewählten Einträge, genau so viele
    void Abspielen(bool Hinzufügen, bool Ausführen);
    void cmdEintragAbspielen_Click();
    void cmdAnhängen_Click();
    void cmdEintragAusführen_Click();
    void cmdEintragAusführenMit_Click();

    // Schließen (frmMainSchliessen.cpp)
    FensterLage Lage() const;
    // Sichern vor dem Ende: Lage, Index (oder Frage), Einstellungen. false: bleiben.
    bool EndeVorbereiten();
    void FensterLageSpeichern();
    void lblIndexdatei_Click();

    // Hilfe, Info, Internet und Infobereich (frmMainDienste.cpp)
    void cmdHilfe_Click();
    void cmdInfo_Click();
    void mnu_song_InfosInternet_Click();
    void TrayAktionAusführen(TrayAktion aktion);
    void mnu_rechtsklick_ende_Click();

    Kartei& k_;
    GuiOberfläche& ui_;
    std::string standardIndex_;

    LinkeSpalte* links_ = nullptr;
    SpielerTafel* fraLinks3_ = nullptr;
    QLabel* lblProgramm_ = nullptr;
    LinkLabel* lblIndexdatei_ = nullptr;
    KlickLabel* lblIndexdateiUntertitel1_ = nullptr;
    KlickLabel* lblIndexDateiUntertitel2_ = nullptr;
    QComboBox* cboSuche_ = nullptr;
    QComboBox* txtSongname_ = nullptr;
    QPushButton* cmdSucheLöschen_ = nullptr;
    QPushButton* cmdSucheMehr_ = nullptr;
    QStringListModel* vorschlagModell_ = nullptr;  // Aufklappliste von txtSongname
    std::vector<std::string> vorschläge_;          // zuletzt gezeigte Vorschläge
    bool ausAufklappliste_ = false;                // die Person hat in der Aufklappliste gewählt
    SongListeAnsicht* lstSongs_ = nullptr;

    FensterBefehle befehle_;
    std::vector<std::pair<QAction*, bool MenüZustand::*>> menüRegeln_;  // Einträge, die MenüAktualisieren schaltet
    QMenu* mnu_kontext_ = nullptr;
    QMenu* mnu_wähle_ = nullptr;
    QMenu* mnu_songkontext_ = nullptr;

    QTimer* tmrListe_ = nullptr;         // 600 ms, einmalig, startet nicht neu
    QTimer* tmrTimer1_ = nullptr;        // Titel tippen und halten
    QTimer* tmrTimer2_ = nullptr;        // Wartezeit vor dem Titel
    QTimer* tmrScrollUpdate_ = nullptr;  // 500 ms: Spieler, Erkennung, regelmäßiges Speichern
    QTimer* auswahlTimer_ = nullptr;     // fasst viele Auswahländerungen zu einer Anzeige zusammen
    TitelAnimation titel_;
    bool gesperrt_ = false;
    QPointer<QWidget> fokusVorher_;  // hatte den Fokus, bevor das Fenster gesperrt wurde
    bool indexGeladen_ = false;
    bool endeErzwungen_ = false;  // Tag "1": das Menü des Infobereichs will das Ende
    QSystemTrayIcon* tray_ = nullptr;
    QMenu* mnu_rechtsklick_ = nullptr;
    QAction* mnu_rechtsklick_programmzeigen_ = nullptr;
    bool trayVorhanden_ = false;
    bool sitzungBeendet_ = false;  // schon gesichert: das folgende Schließen fragt nichts mehr
};
