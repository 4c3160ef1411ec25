// Die Schichten halten: der Kern kennt kein Qt und keine Oberfläche, die Hilfsdateien nur
// einander. Geprüft werden die Einbindungen in den Quellen selbst.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace {

const std::vector<std::string> kernOrdner = {"app",     "index", "media",   "search",   "player", "intake",
                                             "fileops", "tags",  "reports", "settings", "shell"};

// Die Hilfsdateien (Texte, Zahlen, Datum, Pfade, Bit-Strings, Felder ab 1, Blockleser).
const std::set<std::string> hilfen = {"app/Texte",     "app/Zahlen",      "app/Datum",      "app/Pfade",
                                      "app/BitString", "app/EinsBasiert", "app/BlockLeser", "app/Zeitformat"};

// Projekt-Einbindung einer Zeile ("ordner/Name" ohne Endung), leer wenn keine.
std::string Einbindung(const std::string& zeile) {
    static const std::regex projekt(R"re(^\s*#\s*include\s*"([A-Za-z]+/[A-Za-z0-9_]+)\.h")re");
    std::smatch m;
    return std::regex_search(zeile, m, projekt) ? m[1].str() : std::string();
}

bool QtEinbindung(const std::string& zeile) {
    static const std::regex qt(R"(^\s*#\s*include\s*[<"](Q[A-Za-z]|qt))");
    return std::regex_search(zeile, qt);
}

// Verboten im Kern: Qt und die Ordner der Oberflächen und der Plattform.
bool KernVerstoß(const std::string& zeile) {
    const std::string e = Einbindung(zeile);
    return QtEinbindung(zeile) || e.rfind("platform/", 0) == 0 || e.rfind("ui/", 0) == 0 || e.rfind("cli/", 0) == 0;
}

// Verboten in einer Hilfsdatei: jede Projekt-Einbindung außer einer anderen Hilfe.
bool HilfenVerstoß(const std::string& zeile) {
    const std::string e = Einbindung(zeile);
    return QtEinbindung(zeile) || (!e.empty() && !hilfen.count(e));
}

std::vector<std::string> Zeilen(const std::filesystem::path& datei) {
    std::ifstream ein(datei);
    std::vector<std::string> z;
    for (std::string zeile; std::getline(ein, zeile);) z.push_back(zeile);
    return z;
}

}  // namespace

TEST(Schichten, RegelnErkennenVerstöße) {
    EXPECT_TRUE(KernVerstoß("#include <QString>"));
    EXPECT_TRUE(KernVerstoß("#include \"platform/LinuxShell.h\""));
    EXPECT_TRUE(KernVerstoß("  #  include \"ui/frmMain.h\""));
    EXPECT_TRUE(KernVerstoß("#include \"cli/CliKontext.h\""));
    EXPECT_FALSE(KernVerstoß("#include \"index/IndexDatei.h\""));
    EXPECT_FALSE(KernVerstoß("#include <string>"));
    EXPECT_TRUE(HilfenVerstoß("#include \"app/Kartei.h\""));
    EXPECT_TRUE(HilfenVerstoß("#include \"index/IndexDatei.h\""));
    EXPECT_FALSE(HilfenVerstoß("#include \"app/EinsBasiert.h\""));
    EXPECT_FALSE(HilfenVerstoß("#include <cstdint>"));
}

TEST(Schichten, KernOhneQtOberflächeUndPlattform) {
    int geprüft = 0;
    for (const std::string& ordner : kernOrdner) {
        for (auto& e : std::filesystem::recursive_directory_iterator(std::string(KK_QUELLORDNER) + "/" + ordner)) {
            if (!e.is_regular_file()) continue;
            for (const std::string& zeile : Zeilen(e.path()))
                EXPECT_FALSE(KernVerstoß(zeile)) << e.path() << ": " << zeile;
            ++geprüft;
        }
    }
    EXPECT_GT(geprüft, 10);
}

TEST(Schichten, HilfenBindenNurHilfenEin) {
    int geprüft = 0;
    for (const std::string& hilfe : hilfen) {
        for (const char* endung : {".h", ".cpp"}) {
            const std::filesystem::path datei = std::string(KK_QUELLORDNER) + "/" + hilfe + endung;
            if (!std::filesystem::exists(datei)) continue;
            for (const std::string& zeile : Zeilen(datei)) EXPECT_FALSE(HilfenVerstoß(zeile)) << datei << ": " << zeile;
            ++geprüft;
        }
    }
    EXPECT_GE(geprüft, int(hilfen.size()));  // jede Hilfe hat mindestens ihren Kopf
}
