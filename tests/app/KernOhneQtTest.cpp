// Der Kern darf kein Qt kennen: keine Qt-Einbindung in seinen Ordnern.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>

TEST(Kern, KeineQtEinbindung) {
    const std::regex qt(R"(^\s*#\s*include\s*[<"](Q[A-Za-z]|qt))");
    int geprüft = 0;
    for (const char* ordner :
         {"app", "index", "media", "search", "player", "intake", "fileops", "tags", "reports", "settings", "shell"}) {
        for (auto& e : std::filesystem::recursive_directory_iterator(std::string(KK_QUELLORDNER) + "/" + ordner)) {
            if (!e.is_regular_file()) continue;
            std::ifstream ein(e.path());
            std::string zeile;
            while (std::getline(ein, zeile)) EXPECT_FALSE(std::regex_search(zeile, qt)) << e.path() << ": " << zeile;
            ++geprüft;
        }
    }
    EXPECT_GT(geprüft, 10);
}
