#include "shell/TitelNachricht.h"

#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"

namespace {
// Die ersten n Zeichen (Codepunkte), damit kein Umlaut halb im Titel steht.
std::string ErsteZeichen(const std::string& text, int32_t n) {
    size_t i = 0;
    for (int32_t gezählt = 0; i < text.size() && gezählt < n; ++gezählt) {
        ++i;
        while (i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80) ++i;
    }
    return text.substr(0, i);
}
}  // namespace

TitelSchritt TitelNachrichtStarten(TitelAnimation& a, const std::string& text, int32_t verzögerungMs) {
    TitelSchritt s;
    s.normalerTitel = verzögerungMs != 0;
    a.TitelNachricht = text;
    a.TitelPosition = 0;
    if (verzögerungMs != 0) s.timer2Ms = verzögerungMs > 0 ? verzögerungMs : 1;
    else s.timer1Ms = TitelTippIntervall;
    return s;
}

TitelSchritt TitelTimer2(TitelAnimation&) {
    TitelSchritt s;
    s.timer1Ms = TitelTippIntervall;
    return s;
}

TitelSchritt TitelTimer1(TitelAnimation& a, int32_t aktuellesIntervallMs) {
    TitelSchritt s;
    if (aktuellesIntervallMs == TitelHalteIntervall) {
        s.normalerTitel = true;  // gehalten: fertig
        return s;
    }
    a.TitelPosition += 2;
    if (a.TitelPosition < ZeichenAnzahl(a.TitelNachricht)) {
        s.titel = ErsteZeichen(a.TitelNachricht, a.TitelPosition);
        s.timer1Ms = TitelTippIntervall;
    } else {
        s.titel = a.TitelNachricht;
        s.timer1Ms = TitelHalteIntervall;
    }
    return s;
}

std::string NormalerTitel(const std::string& indexDatei) {
    if (indexDatei.empty()) return ProgrammTitelMitVersion();
    return ProgrammTitelMitVersion() + " - " + DateinameAusPfad(indexDatei);
}
