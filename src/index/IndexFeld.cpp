#include "index/IndexFeld.h"

#include "app/Datum.h"
#include "app/FeldTabelle.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Zahlen.h"
#include "app/Zeitformat.h"
#include "fileops/DateinamenFormatieren.h"
#include "index/Spalten.h"
#include "media/Genres.h"

#include <charconv>

namespace {
using K = IndexFeldKennung;

void ZahlSetzen(std::string& ergebnis, int64_t wert) {
    char puffer[24];
    auto [ende, fehler] = std::to_chars(puffer, puffer + sizeof puffer, wert);
    (void)fehler;
    ergebnis.assign(puffer, ende);
}

// Tracknummern: nicht leer und kürzer als zwei Zeichen → links mit "0" auf zwei.
void TrackSetzen(std::string& ergebnis, const std::string& track) {
    ergebnis.clear();
    if (!track.empty() && track.size() < 2) ergebnis.push_back('0');
    ergebnis.append(track);
}

void DatumSetzen(std::string& ergebnis, const std::string& text, bool sortierForm, bool mitZeit) {
    Datum d;
    if (!DatumLesen(text, d)) {
        ergebnis.clear();
        return;
    }
    if (mitZeit) ergebnis.assign(sortierForm ? DatumZeitSortText(d) : DatumZeitText(d));
    else ergebnis.assign(sortierForm ? DatumSortText(d) : DatumText(d));
}

int16_t Art(K kennung) {
    switch (kennung) {
    case K::Nummer:
    case K::Track:
    case K::Titelnummer:
    case K::Größe:
    case K::Frames:
    case K::AbspielHäufigkeit:
    case K::TrackV2:
    case K::TagGrößeV2: return IndexFeldArt::Zahl;
    case K::HinzufügeDatum: return IndexFeldArt::Datum;
    case K::AbspielDatum: return IndexFeldArt::DatumZeit;
    case K::Dauer: return IndexFeldArt::Dauer;
    default: return IndexFeldArt::Text;
    }
}

// Der Text des Feldes, das die Spalte zeigt (Interpret, Titel, … und ihre ID3v2-Gegenstücke).
const KText& SpaltenText(const DateiInfo& d, K kennung) {
    return DateiFeldFürSpalte(static_cast<int32_t>(kennung))->Text(d);
}

void Standardsuche(std::string& e, const DateiInfo& d, const std::string& pfad) {
    e.clear();
    for (const KText* teil :
         {&d.Mp3_ID3v2_TPE1, &d.Mp3_ID3v2_TIT2, &d.Mp3_ID3v1_Interpret, &d.Mp3_ID3v1_Titel, &d.Mp3_ID3v1_Album})
        e.append(teil->sicht()).push_back(' ');
    PfadTextAnhängen(e, pfad);
}

// Die Felder, die nur von den Kopf- und Dateidaten abhängen.
void TechnikFeld(std::string& e, const DateiInfo& d, K kennung) {
    e.clear();
    switch (kennung) {
    case K::Größe:
        if (d.Datei_Größe > 0) TausenderFormatAnhängen(e, d.Datei_Größe);
        break;
    case K::Bitrate:
        if (d.Header_Bitrate >= 1) {
            ZahlSetzen(e, d.Header_Bitrate);
            e.append(d.Header_VBR ? " VBR" : " CBR");
        }
        break;
    case K::Dauer:
        if (d.Header_Dauer >= 0) e.assign(SekundenFormatieren(d.Header_Dauer, false));
        break;
    case K::Frequenz:
        if (d.Header_Frequenz >= 1) {
            ZahlSetzen(e, d.Header_Frequenz);
            e.append(" Hz");
            if (!d.Header_Modus.empty()) e.append(", ").append(d.Header_Modus);
        }
        break;
    case K::Frames:
        if (d.Header_Frames >= 1) ZahlSetzen(e, d.Header_Frames);
        break;
    default: break;
    }
}
}  // namespace

IndexFeld IndexFeldVorbereiten(std::string_view feld) {
    IndexFeld f;
    if (!feld.empty() && feld.front() == '%') {
        f.kennung = K::Muster;
        f.muster.assign(feld);
    } else if (int32_t spalte = SpaltenNummer(feld)) {
        f.kennung = static_cast<K>(spalte);
    } else if (feld == "Titelnummer") {
        f.kennung = K::Titelnummer;
    } else if (feld == "Datei-Endung") {
        f.kennung = K::DateiEndung;
    } else if (feld == "(Standardsuche)") {
        f.kennung = K::Standardsuche;
    }
    return f;
}

IndexFeld IndexFeldFürSpalte(int32_t spalte) {
    IndexFeld f;
    if (spalte >= 1 && spalte <= SpaltenAnzahl) f.kennung = static_cast<K>(spalte);
    return f;
}

bool IndexFeldZurückgeben(const Kartei& k, int32_t nummer, std::string_view feld, std::string_view modus,
                          std::string& ergebnis, int16_t& art) {
    return IndexFeldZurückgeben(k, nummer, IndexFeldVorbereiten(feld), modus == "1", ergebnis, art);
}

bool IndexFeldZurückgeben(const Kartei& k, int32_t nummer, int32_t spalte, bool sortierForm, std::string& ergebnis,
                          int16_t& art) {
    return IndexFeldZurückgeben(k, nummer, IndexFeldFürSpalte(spalte), sortierForm, ergebnis, art);
}

bool IndexFeldZurückgeben(const Kartei& k, int32_t nummer, const IndexFeld& feld, bool sortierForm,
                          std::string& ergebnis, int16_t& art, int32_t tiefe) {
    ergebnis.clear();
    art = Art(feld.kennung);
    if (feld.kennung == K::Unbekannt || !k.DateiPfade.GültigerIndex(nummer) || !k.DateiDaten.GültigerIndex(nummer))
        return false;
    const DateiInfo& d = k.DateiDaten[nummer];
    const std::string& pfad = k.DateiPfade[nummer];
    const bool tag1 = d.Mp3_ID3v1_Status == 1, tag2 = d.Mp3_ID3v2_Status == 1;

    switch (feld.kennung) {
    case K::Standardsuche: Standardsuche(ergebnis, d, pfad); break;
    case K::Nummer: ZahlSetzen(ergebnis, nummer); break;
    case K::Pfad: PfadTextAnhängen(ergebnis, PfadZurückgebenSicht(pfad)); break;
    case K::Dateiname: PfadTextAnhängen(ergebnis, DateinameAusPfadSicht(pfad)); break;
    case K::DateiEndung: PfadTextAnhängen(ergebnis, DateiEndungSicht(pfad)); break;
    case K::PfadDateiname: PfadTextAnhängen(ergebnis, pfad); break;
    case K::Interpret:
    case K::Titel:
    case K::Album:
    case K::Jahr:
    case K::Kommentar:
    case K::Track:
        if (tag1) ergebnis.assign(SpaltenText(d, feld.kennung));
        break;
    case K::Titelnummer:
        if (tag1) TrackSetzen(ergebnis, SpaltenText(d, K::Track));
        break;
    case K::Genre:
        // Code hinter der Tabelle (255 = kein Genre) gibt einen leeren Namen.
        if (tag1 && !d.Mp3_ID3v1_Genre.empty())
            ergebnis.assign(GenreName(static_cast<unsigned char>(d.Mp3_ID3v1_Genre[0])));
        break;
    case K::Größe:
    case K::Bitrate:
    case K::Dauer:
    case K::Frequenz:
    case K::Frames: TechnikFeld(ergebnis, d, feld.kennung); break;
    case K::Wechselmedium: ergebnis.assign(SpaltenText(d, K::Wechselmedium)); break;
    case K::HinzufügeDatum: DatumSetzen(ergebnis, SpaltenText(d, K::HinzufügeDatum), sortierForm, false); break;
    case K::AbspielDatum: DatumSetzen(ergebnis, SpaltenText(d, K::AbspielDatum), sortierForm, true); break;
    case K::AbspielHäufigkeit: ZahlSetzen(ergebnis, d.Datei_AngefordertAnzahl); break;
    case K::Benutzerdefiniert:
        if (!k.Optionen.SpaltenNutzerformat.empty())
            ergebnis.assign(DateinamenFormatieren(k, k.Optionen.SpaltenNutzerformat, nummer, tiefe + 1));
        break;
    case K::Muster: ergebnis.assign(DateinamenFormatieren(k, feld.muster, nummer, tiefe + 1)); break;
    case K::InterpretV2:
    case K::TitelV2:
    case K::AlbumV2:
    case K::JahrV2:
    case K::KommentarV2:
        if (tag2) ergebnis.assign(SpaltenText(d, feld.kennung));
        break;
    case K::TrackV2:
        if (tag2) TrackSetzen(ergebnis, SpaltenText(d, K::TrackV2));
        break;
    case K::GenreV2:
        if (tag2) {
            // "(17)Rock" → "Rock"
            auto klammer = d.Mp3_ID3v2_TCON.find(')');
            ergebnis.assign(klammer == std::string::npos ? std::string_view(d.Mp3_ID3v2_TCON)
                                                         : std::string_view(d.Mp3_ID3v2_TCON).substr(klammer + 1));
        }
        break;
    case K::TagVersionV2:
        if (tag2) {
            if (!d.Mp3_ID3v2_Version.empty() && d.Mp3_ID3v2_Version.front() == '.') ergebnis.push_back('2');
            ergebnis.append(d.Mp3_ID3v2_Version);
        }
        break;
    case K::TagGrößeV2:
        if (tag2) TausenderFormatAnhängen(ergebnis, d.Mp3_ID3v2_TAGGröße);
        break;
    case K::Unbekannt: return false;
    }
    return true;
}

bool IndexFeldSicht(const Kartei& k, int32_t nummer, const IndexFeld& feld, std::string_view& sicht) {
    if (!k.DateiPfade.GültigerIndex(nummer) || !k.DateiDaten.GültigerIndex(nummer)) return false;
    const DateiInfo& d = k.DateiDaten[nummer];
    switch (feld.kennung) {
    case K::Interpret:
    case K::Titel:
    case K::Album:
    case K::Jahr:
    case K::Kommentar:
        sicht = d.Mp3_ID3v1_Status == 1 ? std::string_view(SpaltenText(d, feld.kennung)) : "";
        return true;
    case K::InterpretV2:
    case K::TitelV2:
    case K::AlbumV2:
    case K::JahrV2:
    case K::KommentarV2:
        sicht = d.Mp3_ID3v2_Status == 1 ? std::string_view(SpaltenText(d, feld.kennung)) : "";
        return true;
    case K::Dateiname:
        sicht = DateinameAusPfadSicht(k.DateiPfade[nummer]);
        return IstGültigesUtf8(sicht);  // sonst wandelt PfadTextAnhängen um
    default: return false;
    }
}
