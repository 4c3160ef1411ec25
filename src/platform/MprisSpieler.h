#pragma once
// Das Spielerfenster unter Linux: ein bekannter Spieler mit MPRIS auf dem Sitzungsbus. Was MPRIS
// nicht kann (Playlist leeren, zum Ende springen, Balance), kommt bei Audacious über dessen
// eigene Schnittstelle org.atheme.audacious; andere Spieler lassen es aus.
#include "app/Dienste.h"

#include <QString>
#include <QVariant>

#include <cstdint>
#include <string>
#include <vector>

class MprisSpielerfenster final : public Spielerfenster {
public:
    // Griff = Stelle des Dienstes in dienste_ + 1; 0, wenn kein bekannter Spieler auf dem Bus ist.
    int64_t FensterFinden(const std::string& klasse) override;
    int32_t NachrichtSenden(int64_t fenster, uint32_t nachricht, int32_t wParam, int32_t lParam) override;
    // "Interpret - Titel" aus den Metadaten; ohne Interpret der Titel, ohne beides der Dateiname.
    std::string FensterText(int64_t fenster) override;

private:
    QString Dienst(int64_t fenster) const;
    int32_t Befehl(const QString& dienst, int32_t befehl);
    int32_t Benutzer(const QString& dienst, int32_t wParam, int32_t lParam);
    QVariant Eigenschaft(const QString& dienst, const QString& name);
    QVariantMap Metadaten(const QString& dienst);
    void ZumEnde(const QString& dienst);
    void Springen(const QString& dienst, int64_t ms);
    void Balance(const QString& dienst, int32_t wert);

    std::vector<QString> dienste_;  // je gefundener Dienst ein fester Griff
};

// Der Fenstertext aus MPRIS-Metadaten (xesam:artist, xesam:title, xesam:url).
std::string MprisFensterText(const QVariantMap& metadaten);
