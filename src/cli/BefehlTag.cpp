// tag und untag: Tag-Felder einer Datei setzen und schreiben, oder einen Tag entfernen.
#include "cli/Befehle.h"
#include "cli/MedienHilfen.h"
#include "media/Id3v1.h"
#include "media/Id3v2Schreiben.h"
#include "media/MedienInfos.h"
#include "tags/TagDateien.h"

#include <cstdio>

namespace {
int TagAusführen(CliKontext& c, const std::vector<std::string>& argumente) {
    if (argumente.size() < 2) return GebrauchsFehler("tag braucht eine Datei und mindestens ein Feld Name=Wert.");
    const IndexLage index = MedienBefehlVorbereiten(c);
    const std::string pfad = VollerDateiPfad(argumente[0]);
    DateiInfo d = MedienInfosLesen(c.k, pfad, DateiInfo{}, "11", false, "1", "1");
    bool v1 = false, v2 = false;
    for (size_t i = 1; i < argumente.size(); ++i) {
        const auto gleich = argumente[i].find('=');
        const std::string name = argumente[i].substr(0, gleich);
        if (gleich == std::string::npos) return GebrauchsFehler("tag: '" + argumente[i] + "' ist nicht Name=Wert.");
        if (!DateiInfoFeldSetzen(d, name, argumente[i].substr(gleich + 1)))
            return GebrauchsFehler("tag: unbekanntes Feld oder ungültiger Wert in '" + argumente[i] + "'.");
        v1 = v1 || TagDesFeldes(name) == 1;
        v2 = v2 || TagDesFeldes(name) == 2;
    }
    if (!v1 && !v2) return 0;  // kein Tag-Feld genannt: nichts zu schreiben
    if (!TagDateitypFragen(c.k, pfad)) return 1;

    int rückgabe = 0;
    std::string fehler;
    if (v1 && !Mp3TAGSpeichernV1Datei(pfad, TAGAusFeldernZusammensetzen(Id3v1FelderAusDatensatz(d)), fehler)) {
        std::fprintf(stderr, "%s\n", fehler.c_str());
        rückgabe = 1;
    }
    if (v2 && !MP3TagSpeichernV2Datei(c.k, pfad, fehler, d)) {
        std::fprintf(stderr, "%s\n", fehler.c_str());
        rückgabe = 1;
    }
    if (!IndexNachführen(c, index, pfad)) rückgabe = 1;
    return rückgabe;
}

int UntagAusführen(CliKontext& c, const std::vector<std::string>& argumente) {
    std::string version, datei;
    for (const auto& a : argumente) {
        if (a == "--v1" || a == "--v2") {
            if (!version.empty()) return GebrauchsFehler("untag: nur einer von --v1 und --v2.");
            version = a;
        } else if (datei.empty() && !(a.size() > 1 && a[0] == '-')) {
            datei = a;
        } else {
            return GebrauchsFehler("untag: unerwartetes Argument '" + a + "'.");
        }
    }
    if (version.empty() || datei.empty()) return GebrauchsFehler("untag braucht --v1 oder --v2 und eine Datei.");
    const IndexLage index = MedienBefehlVorbereiten(c);
    const std::string pfad = VollerDateiPfad(datei);
    DateiInfo arbeit;
    DateiRest rest;
    const bool gelungen =
        version == "--v1" ? TAGEntfernen(c.k, arbeit, pfad) : TAGEntfernenV2(c.k, pfad, 0, false, rest);
    if (gelungen && !IndexNachführen(c, index, pfad)) return 1;
    return gelungen ? 0 : 1;
}
}  // namespace

extern const Befehl BefehlTag = {"tag", "tag DATEI Name=Wert...",
                                 "Tag-Felder setzen und den ID3v1- bzw. ID3v2-Tag schreiben", TagAusführen};
extern const Befehl BefehlUntag = {"untag", "untag --v1|--v2 DATEI", "den ID3v1- oder ID3v2-Tag entfernen",
                                   UntagAusführen};
