#include "cli/IndexLaden.h"

#include "app/IndexOeffnen.h"
#include "platform/LinuxDienste.h"

#include <charconv>
#include <cstdio>

bool IndexFürBefehlLaden(CliKontext& c) {
    const std::string standard = c.indexPfad.empty() ? StandardIndexBereitstellen() : std::string();
    c.k.Dateiname = c.indexPfad;
    if (IndexÖffnen(c.k, standard)) return true;
    std::fprintf(stderr, "Die Indexdatei '%s' wurde nicht geladen.\n", c.k.Dateiname.c_str());
    return false;
}

bool NummerLesen(const std::string& text, int32_t& nummer) {
    const char* ende = text.data() + text.size();
    auto [p, fehler] = std::from_chars(text.data(), ende, nummer);
    return fehler == std::errc() && p == ende;
}
