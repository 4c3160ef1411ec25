#include "shell/Internet.h"

#include "app/BlockLeser.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "shell/Hilfe.h"

namespace {
constexpr std::string_view Kennung = "InetURLs100";

void DateiFehler(Kartei& k, const std::string& datei, const char* grund) {
    k.ui.MeldungZeigen("Die Adressdatei '" + datei + "' kann nicht geladen werden, " + grund +
                           "\n\nDiese wird zur Anzeige der gewünschten Informationen benötigt. Bitte installieren Sie "
                           "die Datei erneut.",
                       Meldung::Ausrufezeichen);
}

bool KennungPasst(std::string_view zeile) { return zeile.size() == Kennung.size() && TexteGleich(zeile, Kennung); }
}  // namespace

bool InternetAdressenLaden(Kartei& k, const std::string& datei, EinsBasiert<std::string>& InternetURLs,
                           EinsBasiert<std::string>& InternetNamen) {
    InternetURLs.ReDim(0);
    InternetNamen.ReDim(0);
    BlockLeser leser(size_t(64) << 10);
    if (!DoesExist(datei) || IstOrdner(datei) || !leser.Öffnen(datei)) {
        DateiFehler(k, datei, "da diese nicht existiert.");
        return false;
    }
    std::string_view roh;
    if (!leser.ZeileEinfach(roh) || !KennungPasst(roh)) {
        DateiFehler(k, datei, "da ihr Format nicht korrekt ist.");
        return false;
    }
    int32_t anzahl = 0;
    while (leser.ZeileEinfach(roh)) {
        const std::string zeile = DateiTextLesen(roh);
        if (zeile.empty() || zeile[0] == '\'') continue;
        if (zeile[0] == '#') {
            ++anzahl;
            InternetNamen.ReDimPreserve(anzahl);
            InternetURLs.ReDimPreserve(anzahl);
            InternetNamen[anzahl] = zeile.substr(1);
            continue;
        }
        // Eine Adresse vor dem ersten Namen gehört zu keinem Eintrag: die Datei ist verdorben.
        if (anzahl == 0) {
            KK_TRACE("InternetAdressenLaden", "Adresse ohne Namen: " + zeile);
            DateiFehler(k, datei, "da ihr Format nicht korrekt ist.");
            InternetNamen.ReDim(0);
            return false;
        }
        InternetURLs[anzahl] = zeile;
    }
    return anzahl > 0;
}

std::string InternetFormat(const std::string& text) {
    static const char Ziffern[] = "0123456789ABCDEF";
    std::string aus;
    aus.reserve(text.size() * 3);
    for (const char c : text) {
        if ((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) {
            aus += c;
            continue;
        }
        const auto b = static_cast<unsigned char>(c);
        aus += '%';
        if (b >= 16) aus += Ziffern[b >> 4];
        aus += Ziffern[b & 15];
    }
    return aus;
}

bool InternetSucheVorbereiten(Kartei& k, const std::string& datenOrdner, const EinsBasiert<int32_t>& auswahl,
                              int32_t auswahlAnzahl, InternetAuswahl& a) {
    if (!InternetAdressenLaden(k, datenOrdner + "/" + InternetAdressDatei, a.URLs, a.Namen)) return false;
    a.suche.clear();
    if (auswahlAnzahl >= 1 && auswahl.GültigerIndex(1)) {
        const int32_t eintrag = auswahl[1];
        if (k.DateiDaten.GültigerIndex(eintrag)) a.suche = k.DateiDaten[eintrag].Mp3_ID3v1_Interpret;
    }
    return true;
}

bool InternetSucheÖffnen(Kartei& k, const InternetAuswahl& a, int32_t zeile, const std::string& suche) {
    if (zeile < 1 || !a.URLs.GültigerIndex(zeile)) {
        k.ui.MeldungZeigen("Bitte wählen Sie einen Eintrag.", Meldung::Information);
        return false;
    }
    if (suche.empty()) {
        k.ui.MeldungZeigen("Bitte geben Sie einen Such-Text ein.", Meldung::Information);
        return false;
    }
    // Misslingt das Öffnen, bleibt das Fenster offen.
    return AnzeigenOderMelden(k, Ersetzen(a.URLs[zeile], "%Suche%", InternetFormat(suche)));
}
