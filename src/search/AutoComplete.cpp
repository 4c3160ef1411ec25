#include "search/AutoComplete.h"

#include "app/Kartei.h"
#include "app/Texte.h"
#include "index/IndexFeld.h"
#include "search/Suchbegriffe.h"

#include <algorithm>
#include <unordered_set>
#include <vector>

namespace {
// Sammelt die Werte; die gefaltete Form dient als Schlüssel für "schon gesehen", das ersetzt den
// Vergleich mit allen bisherigen Werten über TexteGleich.
class WerteSammler {
public:
    explicit WerteSammler(const Kartei& k) : k_(k) {}
    void Aufnehmen(const IndexFeld& feld, int32_t eintrag) {
        int16_t art = 0;
        if (IndexFeldZurückgeben(k_, eintrag, feld, false, text_, art) && !text_.empty() && text_.back() == '\0')
            text_ = NullAbschneiden(text_);
        if (text_.empty()) return;
        gefaltet_.clear();
        KleinAnhängen(gefaltet_, text_);
        if (gesehen_.find(gefaltet_) != gesehen_.end()) return;
        gesehen_.insert(gefaltet_);
        werte.push_back(text_);
    }
    std::vector<std::string> werte;

private:
    const Kartei& k_;
    std::unordered_set<std::string> gesehen_;
    std::string text_, gefaltet_;
};
}  // namespace

bool AutoCompleteFüllen(Kartei& k, KomboFeld& Liste, const std::string& Feld, int32_t Aktiv,
                        const std::string& ZweitesFeld) {
    WerteSammler sammler(k);
    if (Aktiv != 0 && k.DateiAnzahl >= 1 && !Feld.empty() && Feld != Standardsuche) {
        const IndexFeld erstes = IndexFeldVorbereiten(Feld), zweites = IndexFeldVorbereiten(ZweitesFeld);
        const int32_t bis = std::min({k.DateiAnzahl, k.DateiPfade.UBound(), k.DateiDaten.UBound()});
        for (int32_t e = 1; e <= bis; ++e) {
            sammler.Aufnehmen(erstes, e);
            if (!ZweitesFeld.empty()) sammler.Aufnehmen(zweites, e);
        }
    }
    // Das Füllen des Feldes löst bei der Anzeige Ereignisse aus: die Suche bleibt solange gesperrt.
    const bool warGesperrt = k.Suche.SucheGesperrt;
    k.Suche.SucheGesperrt = true;
    const std::string text = Liste.Text;
    Liste.List = std::move(sammler.werte);
    Liste.ListIndex = -1;
    Liste.Text = text;
    k.Suche.SucheGesperrt = warGesperrt;
    return true;
}

bool AutoCompleteAusführen(Kartei& k, const std::string& Text, KomboFeld& Liste, KomboFeld& Eingabe) {
    auto& s = k.Suche;
    s.SucheGesperrt = true;
    if (Text.empty() || s.AutoCompleteUnterdrückt || !s.AutoCompleteErlaubt || k.E.AutoCompleteVerwenden == 0) {
        s.AutoCompleteUnterdrückt = false;
        s.SucheGesperrt = false;
        return false;
    }
    for (int32_t i = 0; i < Liste.ListCount(); ++i) {
        const std::string eintrag = Liste.List[size_t(i)];
        if (!BeginntMitText(eintrag, Text)) continue;
        const int32_t marke = std::max(0, Eingabe.SelStart);
        // Die Wahl setzt den ganzen Eintrag in den Text; getippt bleibt stehen, der Rest ist markiert.
        Liste.ListIndex = i;
        Liste.Text = eintrag;
        Eingabe.Text = eintrag;
        const int32_t länge = ZeichenAnzahl(Eingabe.Text);
        Eingabe.SelStart = std::min(marke, länge);
        Eingabe.SelLength = länge - Eingabe.SelStart;
        break;
    }
    s.SucheGesperrt = false;
    return true;
}
