// Neue Namen der Umbenennung: Zähler, fortlaufende Namen, Schreibweise, Muster und Endungen.
#include "fileops/UmbenennenNamen.h"

#include "app/Pfade.h"
#include "app/Texte.h"
#include "app/Trace.h"
#include "fileops/DateinamenFormatieren.h"

namespace {
// Länge des UTF-8-Zeichens ab Byte i; ein ungültiges Byte zählt allein.
size_t ZeichenLänge(std::string_view text, size_t i) {
    const auto b = static_cast<unsigned char>(text[i]);
    size_t n = b < 0x80 ? 1 : (b >> 5) == 0x6 ? 2 : (b >> 4) == 0xE ? 3 : (b >> 3) == 0x1E ? 4 : 1;
    if (i + n > text.size()) return 1;
    for (size_t j = 1; j < n; ++j)
        if ((static_cast<unsigned char>(text[i + j]) & 0xC0) != 0x80) return 1;
    return n;
}

enum class Folge { Bleibt, Groß, Klein };

// Was das Zeichen für seinen Nachfolger bedeutet.
Folge FolgeNach(std::string_view zeichen, bool nurErsterBuchstabe) {
    static constexpr std::string_view groß = ".-()[]!?}{<>%$&*+~#";
    static constexpr std::string_view klein = "_;:,'/\\";
    if (zeichen == " ") return nurErsterBuchstabe ? Folge::Bleibt : Folge::Groß;
    if (zeichen == "§") return Folge::Klein;
    if (zeichen.size() != 1) return Folge::Bleibt;
    if (groß.find(zeichen[0]) != std::string_view::npos) return Folge::Groß;
    if (klein.find(zeichen[0]) != std::string_view::npos) return Folge::Klein;
    return Folge::Bleibt;
}

// Der Name ohne Endung: der Teil hinter dem Ordner.
std::string NameOhneEndung(std::string_view pfad) {
    const std::string ohne = PfadOhneEndung(pfad);
    return DateinameAusPfad(ohne);
}

// Ordner & "/" & name & Endung des alten Pfades.
std::string ImOrdner(std::string_view pfad, std::string_view name) {
    return PfadZurückgeben(pfad) + "/" + std::string(name) + DateiEndung(pfad);
}
}  // namespace

std::string GroßKlein(std::string_view text, bool nurErsterBuchstabe) {
    const std::string klein = Klein(text);
    std::string ergebnis;
    ergebnis.reserve(klein.size());
    Folge folge = Folge::Groß;  // das erste Zeichen wird groß
    for (size_t i = 0; i < klein.size();) {
        const size_t n = ZeichenLänge(klein, i);
        const std::string_view zeichen(klein.data() + i, n);
        if (folge == Folge::Groß) ergebnis += Groß(zeichen);
        else ergebnis += zeichen;  // schon klein
        folge = FolgeNach(zeichen, nurErsterBuchstabe);
        i += n;
    }
    return ergebnis;
}

std::string SchreibweiseÄndern(std::string_view name, int16_t unterfunktion) {
    switch (unterfunktion) {
    case 1: return Klein(name);
    case 2: return Groß(name);
    case 3: return GroßKlein(name, true);
    case 4: return GroßKlein(name, false);
    default: return std::string(name);
    }
}

std::string PfadOhneEndung(std::string_view pfad) {
    return std::string(pfad.substr(0, pfad.size() - DateiEndungSicht(pfad).size()));
}

std::string NachFeldernBenennen(const Kartei& k, int32_t position, std::string_view pfad, std::string_view format) {
    const std::string ergebnis = DateinamenFormatieren(k, format, position);
    if (IstVollerPfad(format)) {
        KK_TRACE("DateiNachKriterienUmbenennen", "Pfad wurde erkannt - '" + std::string(format) + "'");
        return ergebnis + DateiEndung(pfad);
    }
    return ImOrdner(pfad, ergebnis);
}

std::string ZeichenErsetzen(std::string_view pfad, std::string_view suchen, std::string_view ersetzen) {
    return ImOrdner(pfad, Ersetzen(NameOhneEndung(pfad), suchen, ersetzen));
}

std::string SchreibweiseImPfad(std::string_view pfad, int16_t unterfunktion) {
    return ImOrdner(pfad, SchreibweiseÄndern(NameOhneEndung(pfad), unterfunktion));
}

std::string EndungÄndern(std::string_view pfad, std::string_view neueEndung) {
    return PfadOhneEndung(pfad) + "." + std::string(neueEndung);
}
