#pragma once
// Statustexte im Fenstertitel: der Text wird nach einer Wartezeit Zeichen für Zeichen in den
// Titel "getippt", 2,5 Sekunden gehalten, dann kehrt der normale Titel zurück. Die Zeitgeber
// gehören dem Fenster (tmrTimer2 wartet, tmrTimer1 tippt und hält); hier steht nur, was sie tun.
#include <cstdint>
#include <optional>
#include <string>

struct TitelAnimation {
    std::string TitelNachricht;
    int32_t TitelPosition = 0;  // getippte Zeichen (nicht Bytes)
};

// Was das Fenster nach einem Schritt tun soll. Ein Intervall von 0 hält den Zeitgeber an.
struct TitelSchritt {
    std::optional<std::string> titel;  // neuer Fenstertitel, wenn gesetzt
    bool normalerTitel = false;        // den normalen Titel zeigen (den kennt nur das Fenster)
    int32_t timer1Ms = 0;
    int32_t timer2Ms = 0;
};

inline constexpr int32_t TitelTippIntervall = 15;
inline constexpr int32_t TitelHalteIntervall = 2500;

// TitelNachrichtZeigen(Text, Verzögerung): beide Zeitgeber halten; mit Verzögerung gleich den
// normalen Titel, und tmrTimer2 wartet so lange; ohne beginnt das Tippen sofort.
TitelSchritt TitelNachrichtStarten(TitelAnimation& a, const std::string& text, int32_t verzögerungMs);
// tmrTimer2: einmalig, startet tmrTimer1 mit 15 ms.
TitelSchritt TitelTimer2(TitelAnimation& a);
// tmrTimer1: zwei Zeichen weiter; ist der Text ganz zu sehen, 2500 ms halten; feuert er mit
// diesem Intervall, kehrt der normale Titel zurück.
TitelSchritt TitelTimer1(TitelAnimation& a, int32_t aktuellesIntervallMs);

// "KlangKartei 1.0 - Klangkt.kkt"; ohne Index nur der Programmtitel mit Version.
std::string NormalerTitel(const std::string& indexDatei);
