#include "support/TestOrdner.h"

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>

TestOrdner::TestOrdner() : TestOrdner(std::filesystem::temp_directory_path().string()) {}

TestOrdner::TestOrdner(const std::string& basis) {
    std::error_code fehler;
    const bool da = std::filesystem::is_directory(basis, fehler);
    std::string vorlage =
        ((da ? std::filesystem::path(basis) : std::filesystem::temp_directory_path()) / "kk-test-XXXXXX").string();
    if (!mkdtemp(vorlage.data())) throw std::runtime_error("mkdtemp");
    pfad_ = vorlage;
}

TestOrdner::~TestOrdner() {
    std::error_code fehler;
    // Schreibschutz aus Tests darf das Aufräumen nicht verhindern.
    for (auto& e : std::filesystem::recursive_directory_iterator(pfad_, fehler))
        std::filesystem::permissions(e.path(), std::filesystem::perms::owner_all, std::filesystem::perm_options::add,
                                     fehler);
    std::filesystem::remove_all(pfad_, fehler);
}

std::string DateiLesen(const std::string& pfad) {
    std::ifstream ein(pfad, std::ios::binary);
    std::ostringstream s;
    s << ein.rdbuf();
    return s.str();
}

void DateiSchreiben(const std::string& pfad, const std::string& bytes) {
    std::filesystem::create_directories(std::filesystem::path(pfad).parent_path());
    std::ofstream aus(pfad, std::ios::binary | std::ios::trunc);
    aus.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}
