#include "settings/EinstellungenTabelle.h"

#include "app/Texte.h"
#include "app/Zahlen.h"

#include <limits>
#include <type_traits>

// Der Name des Wertes ist der Name des Mitglieds; so können beide nicht auseinanderlaufen.
#define KK_WERT(mitglied)                                                                                              \
    EinstellungsEintrag { #mitglied, &Einstellungen::mitglied }

const std::vector<EinstellungsEintrag>& EinstellungsTabelle() {
    static const std::vector<EinstellungsEintrag> tabelle = {
        EinstellungsEintrag{"Dateiname", &Kartei::Dateiname},
        KK_WERT(Mp3TagLesen),
        KK_WERT(WinampPfad),
        KK_WERT(FensterHeight),
        KK_WERT(FensterLeft),
        KK_WERT(FensterTop),
        KK_WERT(FensterWidth),
        KK_WERT(FensterMax),
        KK_WERT(Start),
        KK_WERT(WinampParameterAbspielen),
        KK_WERT(WinampParameterHinzufügen),
        KK_WERT(DateiAutomatischSpeichern),
        KK_WERT(HinzufügenKeineDoppelten),
        KK_WERT(HinzufügenUnterordner),
        KK_WERT(StartBildschirm),
        KK_WERT(AutoTagFelderLöschen),
        KK_WERT(AutoTagLeer),
        KK_WERT(KopierenOrdner),
        KK_WERT(KopierenModus),
        KK_WERT(ExportDatei),
        KK_WERT(ExportModus),
        KK_WERT(ExportUntermodus),
        KK_WERT(ExportStriche),
        KK_WERT(PlaylistFürWinamp),
        KK_WERT(BeiDoppelklick),
        KK_WERT(AutoTagAktuell),
        KK_WERT(TAGAutomatischSpeichern),
        KK_WERT(AutoTagUnterstrichEntfernen),
        KK_WERT(WinampLautstärke),
        KK_WERT(WinampBalance),
        KK_WERT(AutoTagAusschlußLeer),
        KK_WERT(NichtVerfügbarFragen),
        KK_WERT(FarbeFunktionen),
        KK_WERT(FarbeFunktionenHintergrund),
        KK_WERT(FarbeListen),
        KK_WERT(FarbeListenHintergrund),
        KK_WERT(FarbeÜberschrift),
        KK_WERT(FarbeBeschreibungen),
        KK_WERT(FarbeFunktionenBesucht),
        KK_WERT(FunktionenUnterstreichen),
        KK_WERT(AutoCompleteVerwenden),
        KK_WERT(UmbenennenEingabeID3),
        KK_WERT(UmbenennenEingabeNeuAnfang),
        KK_WERT(UmbenennenEingabeNeuZahl),
        KK_WERT(UmbenennenEingabeNeuEnde),
        KK_WERT(UmbenennenEingabeErsetzenText),
        KK_WERT(UmbenennenEingabeErsetzenDurch),
        KK_WERT(UmbenennenEingabeSchreibweise),
        KK_WERT(UmbenennenEingabeDateiEndung),
        KK_WERT(Auswahlliste),
        KK_WERT(BeendenReaktion),
        KK_WERT(RegelmäßigSpeichernAlle),
        KK_WERT(AbspielStatistikSpeichern),
        KK_WERT(AutoDJFindeAnzahl),
        KK_WERT(AutoDJAuslassenZeit),
        KK_WERT(AutoDJAuslassenGröße),
        KK_WERT(AutoDJAuslassenVorKurzem),
        KK_WERT(AutoDJFindenVorLängerem),
        KK_WERT(SucheNichtBeiAuswahl),
        KK_WERT(SucheNichtBeiTAGEditor),
        KK_WERT(StartBildschirmNichtBeiSpeichern),
        KK_WERT(StartBildschirmNichtBeiLaden),
        KK_WERT(TAGsProzentHinzufügen),
        KK_WERT(TAGsBytesSuchen),
        KK_WERT(TippsAktueller),
        KK_WERT(UmbenennenAttributeA),
        KK_WERT(UmbenennenAttributeH),
        KK_WERT(UmbenennenAttributeR),
        KK_WERT(UmbenennenAttributeS),
        KK_WERT(AusführenPfad),
        KK_WERT(TAGAutomatischSpeichernV2),
        KK_WERT(TAGAutomatischSpeichernFelder),
        KK_WERT(UmbenennenEingabeErsetzenDateiEndung),
        KK_WERT(TAGsSoftwareFeldSchreiben),
    };
    return tabelle;
}
#undef KK_WERT

const EinstellungsEintrag* EinstellungFinden(std::string_view name) {
    for (const auto& e : EinstellungsTabelle())
        if (TexteGleich(e.name, name)) return &e;
    return nullptr;
}

bool IstTextEinstellung(const EinstellungsEintrag& e) {
    return !std::holds_alternative<int16_t Einstellungen::*>(e.ziel) &&
           !std::holds_alternative<int32_t Einstellungen::*>(e.ziel);
}

std::string EinstellungAlsText(const Kartei& k, const EinstellungsEintrag& e) {
    return std::visit(
        [&](auto ziel) -> std::string {
            using Ziel = decltype(ziel);
            if constexpr (std::is_same_v<Ziel, std::string Kartei::*>) return k.*ziel;
            else if constexpr (std::is_same_v<Ziel, std::string Einstellungen::*>) return k.E.*ziel;
            else return ZahlText(k.E.*ziel);
        },
        e.ziel);
}

namespace {
template <typename T> bool ZahlAusText(const std::string& text, T& ziel, std::string& fehler) {
    auto zahl = GanzeZahlLesen(text);
    constexpr auto kleinste = std::numeric_limits<T>::min(), größte = std::numeric_limits<T>::max();
    if (!zahl || *zahl < kleinste || *zahl > größte) {
        fehler = "Der Wert '" + text + "' ist keine ganze Zahl zwischen " + ZahlText(kleinste) + " und " +
                 ZahlText(größte) + ".";
        return false;
    }
    ziel = static_cast<T>(*zahl);
    return true;
}
}  // namespace

bool EinstellungAusText(Kartei& k, const EinstellungsEintrag& e, const std::string& text, std::string& fehler) {
    return std::visit(
        [&](auto ziel) -> bool {
            using Ziel = decltype(ziel);
            if constexpr (std::is_same_v<Ziel, std::string Kartei::*>) k.*ziel = text;
            else if constexpr (std::is_same_v<Ziel, std::string Einstellungen::*>) k.E.*ziel = text;
            else return ZahlAusText(text, k.E.*ziel, fehler);
            return true;
        },
        e.ziel);
}

const std::vector<EinstellungsListe>& EinstellungsListen() {
    // Reihenfolge wie beim Lesen: erst die Ausschlussliste, dann die Formate.
    static const std::vector<EinstellungsListe> listen = {
        {"AutoTagAusschluß", &Einstellungen::AutoTagAusschlußLeer, &Einstellungen::AutoTagAusschluß},
        {"AutoTagFormate", &Einstellungen::AutoTagLeer, &Einstellungen::AutoTagFormate},
    };
    return listen;
}

std::optional<ListenWertName> ListenWertFinden(std::string_view name) {
    for (const auto& l : EinstellungsListen()) {
        const auto stamm = static_cast<int32_t>(std::string_view(l.name).size());
        if (static_cast<int32_t>(name.size()) <= stamm || !TexteGleich(Left(name, stamm), l.name)) continue;
        auto nummer = GanzeZahlLesen(Mid(name, stamm + 1));
        // Nur reine Ziffern ab 1 ("AutoTagFormate+1" oder "...01" sind keine Wertnamen).
        if (!nummer || *nummer < 1 || *nummer > std::numeric_limits<int32_t>::max() ||
            Mid(name, stamm + 1) != ZahlText(*nummer))
            return std::nullopt;
        return ListenWertName{&l, static_cast<int32_t>(*nummer)};
    }
    return std::nullopt;
}

const EinsBasiert<std::string>* GespeicherteListe(const Kartei& k, const EinstellungsListe& l) {
    return k.E.*l.zustand == 1 ? nullptr : &(k.E.*l.liste);
}

bool ListenWertSetzen(Kartei& k, const ListenWertName& w, const std::string& wert, std::string& fehler) {
    auto& liste = k.E.*w.liste->liste;
    int16_t& zustand = k.E.*w.liste->zustand;
    if (zustand == 1) liste.ReDim(0);  // als leer markiert: der leere Platz zählt nicht
    if (w.nummer > liste.UBound() + 1) {
        fehler = "Die Liste '" + std::string(w.liste->name) + "' hat " + ZahlText(liste.UBound()) +
                 " Einträge; setzen lässt sich nur Nummer 1 bis " + ZahlText(liste.UBound() + 1) + ".";
        if (zustand == 1) liste.ReDim(1);
        return false;
    }
    if (w.nummer > liste.UBound()) liste.Anhängen(wert);
    else liste[w.nummer] = wert;
    zustand = 0;
    return true;
}
