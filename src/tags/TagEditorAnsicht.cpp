// Der Tag-Editor als Ansicht: Datensatz in die Steuerelemente, Informationstexte, Steuerelemente
// zurück in den Datensatz, Kopieren zwischen den beiden Tags.
#include "app/BitString.h"
#include "app/Datum.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/Zahlen.h"
#include "app/Zeitformat.h"
#include "media/Genres.h"
#include "media/Id3v1.h"
#include "media/MedienInfos.h"
#include "tags/TagEditor.h"

namespace {
using A = TagEditorAnsicht;
using D = DateiInfo;

constexpr const char* NichtMehrDa = "Diese Datei existiert nicht (mehr).";

void Leeren(TagEditorAnsicht& a, const std::vector<TagEditorTextfeld>& felder) {
    for (const auto& f : felder) (a.*f.steuer).clear();
}

// Die Größe bis 999 schlicht, darüber mit Tausenderpunkten.
std::string GrößeText(int32_t größe) { return größe < 1000 ? std::to_string(größe) : TausenderFormat(größe); }

std::string TrackInfos(const DateiInfo& d, const std::string& dateiname) {
    std::string t = "Hinweis: Hier finden Sie einige Informationen über die gewählte Datei.\n\n";
    t += "Dateiname: " + dateiname + "\n";
    t += "Dateigröße: " + GrößeText(d.Datei_Größe) + " Bytes\n";
    if (d.Header_Version == 0 || d.Header_Layer == 0)
        return t + "Kein Dateiheader gefunden - keine weiteren Informationen verfügbar";
    t += "MPEG Version: " + std::to_string(d.Header_Version) + " Layer " + std::to_string(d.Header_Layer) + "\n";
    t += "Modus: " + d.Header_Modus + ", " + std::to_string(d.Header_Frequenz) + " Hz\n";
    t += "Bitrate: " + std::to_string(d.Header_Bitrate) + " kbps" + (d.Header_VBR ? " VBR" : " CBR") + "\n";
    t += "Dauer: " + SekundenFormatieren(d.Header_Dauer) + "\n";
    t += "Anzahl Frames: " + std::to_string(d.Header_Frames) + "\n";
    t += "Copyright: " + JaNeinText(d.Header_Copyright) + "\n";
    t += "CRC: " + JaNeinText(d.Header_CRC) + "\n";
    t += "Emphasis: " + JaNeinText(d.Header_Emphasis) + "\n";
    t += "Original: " + JaNeinText(d.Header_Original) + "\n";
    t += "Padding: " + JaNeinText(d.Header_Padding) + "\n";
    return t + "Privat: " + JaNeinText(d.Header_Privat);
}

void V1Eintragen(TagEditorAnsicht& a, const DateiInfo& d) {
    for (const auto& f : TagEditorV1Felder()) a.*f.steuer = d.*f.feld;
    a.cboMusikrichtung = Id3v1FelderAusDatensatz(d).genreAuswahl;
    const bool da = d.Mp3_ID3v1_Status == 1;
    a.lblID3v1Info = da ? "Der gefundene ID3v1-TAG belegt 128 Bytes." : "Es wurde kein gültiger ID3v1-TAG gefunden.";
    a.cmdTAGEntfernen = da;
}

void V2Eintragen(TagEditorAnsicht& a, const DateiInfo& d) {
    for (const auto& f : TagEditorV2Felder()) a.*f.steuer = d.*f.feld;
    a.cbov2Musikrichtung = d.Mp3_ID3v2_TCON;
    // Status 3: der Tag besteht erst im Datensatz; der Text bleibt, wie er war.
    if (d.Mp3_ID3v2_Status == 3) return;
    a.cmdTAGEntfernenv2 = d.Mp3_ID3v2_Status == 1;
    if (!a.cmdTAGEntfernenv2) {
        a.lblID3v2Info = "Es wurde kein gültiger ID3v2-TAG gefunden.";
        return;
    }
    std::string t = "Der gefundene ID3v2-TAG belegt " + std::to_string(d.Mp3_ID3v2_TAGGröße) +
                    " Bytes und liegt in der Version " + d.Mp3_ID3v2_Version + " vor.";
    if (!d.Mp3_ID3v2_Weitere.empty()) t += " Dieser enthält noch weitere, hier nicht angezeigte Felder.";
    // Das "+ 1" gehört zur Zählweise der benutzten Bytes.
    if (d.Mp3_ID3v2_Benutzt < 1) t += " 0 Bytes sind ungenutzt.";
    else t += " " + std::to_string(int64_t{d.Mp3_ID3v2_TAGGröße} - d.Mp3_ID3v2_Benutzt + 1) + " Bytes sind ungenutzt.";
    a.lblID3v2Info = t;
}

void IndexEintragen(TagEditorAnsicht& a, const DateiInfo& d) {
    a.txtIndexHinzugefügtAm = d.Datei_HinzugefügtAm;
    a.txtIndexDatenträger = d.Datei_Wechselmedium;
    a.txtIndexAbspielAnzahl = std::to_string(d.Datei_AngefordertAnzahl);
    a.txtIndexAbspielDatum = d.Datei_AngefordertGespieltAm;
}

// Eine ID3v1-Titelnummer ist ein Byte.
std::string V1Titelnummer(const std::string& text) {
    if (text.empty()) return text;
    const auto wert = ZahlWert(text);
    return wert && *wert >= 0 && *wert <= 255 ? text : std::string();
}
}  // namespace

// Die ersten sechs Felder beider Tabellen entsprechen einander (Kopieren zwischen den Tags).
const std::vector<TagEditorTextfeld>& TagEditorV1Felder() {
    static const std::vector<TagEditorTextfeld> felder = {
        {"txtTitel", "Titel:", &A::txtTitel, &D::Mp3_ID3v1_Titel},
        {"txtInterpret", "Interpret:", &A::txtInterpret, &D::Mp3_ID3v1_Interpret},
        {"txtAlbum", "Album:", &A::txtAlbum, &D::Mp3_ID3v1_Album},
        {"txtJahr", "Jahr:", &A::txtJahr, &D::Mp3_ID3v1_Jahr},
        {"txtTitelnummer", "Titelnummer:", &A::txtTitelnummer, &D::Mp3_ID3v1_Track},
        {"txtKommentar", "Kommentar:", &A::txtKommentar, &D::Mp3_ID3v1_Kommentar},
    };
    return felder;
}

const std::vector<TagEditorTextfeld>& TagEditorV2Felder() {
    static const std::vector<TagEditorTextfeld> felder = {
        {"txtv2Titel", "Titel:", &A::txtv2Titel, &D::Mp3_ID3v2_TIT2},
        {"txtv2Interpret", "Interpret:", &A::txtv2Interpret, &D::Mp3_ID3v2_TPE1},
        {"txtv2Album", "Album:", &A::txtv2Album, &D::Mp3_ID3v2_TALB},
        {"txtv2Jahr", "Jahr:", &A::txtv2Jahr, &D::Mp3_ID3v2_TYER},
        {"txtv2Titelnummer", "Titelnummer:", &A::txtv2Titelnummer, &D::Mp3_ID3v2_TRCK},
        {"txtv2Kommentar", "Kommentar:", &A::txtv2Kommentar, &D::Mp3_ID3v2_COMM},
        {"txtv2Komponist", "Komponist:", &A::txtv2Komponist, &D::Mp3_ID3v2_TCOM},
        {"txtv2OriginalInterpret", "Orig. Interpret:", &A::txtv2OriginalInterpret, &D::Mp3_ID3v2_TOPE},
        {"txtv2Copyright", "Copyright:", &A::txtv2Copyright, &D::Mp3_ID3v2_TCOP},
        {"txtv2Verlag", "Verlag:", &A::txtv2Verlag, &D::Mp3_ID3v2_TPUB},
        {"txtv2Kodiert", "Kodiert von:", &A::txtv2Kodiert, &D::Mp3_ID3v2_TENC},
        {"txtv2Software", "Software:", &A::txtv2Software, &D::Mp3_ID3v2_TSSE},
        {"txtv2Link", "Link:", &A::txtv2Link, &D::Mp3_ID3v2_WXXX},
        {"txtv2Sprache", "Sprache:", &A::txtv2Sprache, &D::Mp3_ID3v2_TLAN},
        {"txtv2Medium", "Medium:", &A::txtv2Medium, &D::Mp3_ID3v2_TMED},
        {"txtv2Länge", "Länge (ms):", &A::txtv2Länge, &D::Mp3_ID3v2_TLEN},
        {"txtv2Abspielzähler", "Abspielzähler:", &A::txtv2Abspielzähler, &D::Mp3_ID3v2_PCNT},
    };
    return felder;
}

bool MedienInfosEintragen(Kartei& k, TagEditorAnsicht& a, DateiInfo& info, const std::string& dateiname,
                          const std::string& flags) {
    const std::string f = (flags + "000").substr(0, 3);
    const bool vorhanden = DoesExist(dateiname);
    if (f != "000") {
        if (vorhanden) {
            info = MedienInfosLesen(k, dateiname, info, f.substr(0, 2), false, f.substr(2, 1), "0");
        } else {
            info = DateiInfo{};
            info.Mp3_ID3v1_Status = info.Mp3_ID3v2_Status = 0;
        }
    }
    if (f[0] == '1') {
        Leeren(a, TagEditorV1Felder());
        a.cboMusikrichtung = 0;
    }
    if (f[1] == '1') {
        Leeren(a, TagEditorV2Felder());
        a.cbov2Musikrichtung.clear();
    }
    if (f[2] == '1') {
        for (auto* t :
             {&a.txtIndexHinzugefügtAm, &a.txtIndexDatenträger, &a.txtIndexAbspielAnzahl, &a.txtIndexAbspielDatum})
            t->clear();
    }
    if (!vorhanden) {
        a.lblTrackInfos = a.lblID3v1Info = a.lblID3v2Info = NichtMehrDa;
        return false;
    }
    a.lblTrackInfos = TrackInfos(info, dateiname);
    V1Eintragen(a, info);
    V2Eintragen(a, info);
    IndexEintragen(a, info);
    if (k.E.TAGsSoftwareFeldSchreiben == 1) {
        if (a.txtv2Link.empty()) a.txtv2Link = ProgrammWebAdresse;
        if (a.txtv2Software.empty()) a.txtv2Software = ProduktName;
    }
    return true;
}

void TagEditorIndexFelderLesen(const TagEditorAnsicht& a, DateiInfo& d) {
    const std::string& gespielt = a.txtIndexAbspielDatum;
    d.Datei_AngefordertGespieltAm = gespielt.empty() || IstDatum(gespielt) ? gespielt : std::string();
    d.Datei_HinzugefügtAm = IstDatum(a.txtIndexHinzugefügtAm) ? a.txtIndexHinzugefügtAm : std::string();
    int32_t anzahl = 0;
    d.Datei_AngefordertAnzahl = LongLesen(a.txtIndexAbspielAnzahl, anzahl) ? anzahl : 0;
    d.Datei_Wechselmedium = a.txtIndexDatenträger;
}

void TagEditorAnsichtLesen(const TagEditorAnsicht& a, DateiInfo& d) {
    for (const auto& f : TagEditorV1Felder()) d.*f.feld = a.*f.steuer;
    d.Mp3_ID3v1_Track = V1Titelnummer(a.txtTitelnummer);
    const int32_t code = a.cboMusikrichtung - 1;
    d.Mp3_ID3v1_Genre = std::string(1, static_cast<char>(code >= 0 && code < GenreAnzahl() ? code : 255));
    for (const auto& f : TagEditorV2Felder()) d.*f.feld = a.*f.steuer;
    d.Mp3_ID3v2_TCON = a.cbov2Musikrichtung;
    TagEditorIndexFelderLesen(a, d);
}

void cmdDatenKopierenNachV1(TagEditorAnsicht& a) {
    for (size_t i = 0; i < 6; ++i) a.*TagEditorV1Felder()[i].steuer = a.*TagEditorV2Felder()[i].steuer;
    a.cboMusikrichtung = GenreCodeOhneGroßKlein(a.cbov2Musikrichtung) + 1;
}

void cmdDatenKopierenNachV2(TagEditorAnsicht& a) {
    for (size_t i = 0; i < 6; ++i) a.*TagEditorV2Felder()[i].steuer = a.*TagEditorV1Felder()[i].steuer;
    a.cbov2Musikrichtung = a.cboMusikrichtung > 0 ? GenreName(a.cboMusikrichtung - 1) : std::string();
}

bool TitelnummerZeichenErlaubt(uint32_t zeichen) { return zeichen < 32 || (zeichen >= '0' && zeichen <= '9'); }
