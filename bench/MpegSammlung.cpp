#include "MpegSammlung.h"

#include "support/MpegDaten.h"

#include <filesystem>
#include <random>
#include <stdlib.h>

MpegSammlung::MpegSammlung(int anzahl, bool mitOrdnern) {
    std::string vorlage = (std::filesystem::temp_directory_path() / "kk-bench-XXXXXX").string();
    ordner_ = mkdtemp(vorlage.data()) ? vorlage : "";
    std::mt19937 z(42);
    for (int i = 0; i < anzahl; ++i) {
        mpeg::V2Tag t;
        t.rahmen = {mpeg::Text("TIT2", "Titel " + std::to_string(i)),
                    mpeg::Text("TPE1", "Interpret"),
                    mpeg::Text("TALB", "Album"),
                    mpeg::Kommentar("COMM", "Kommentar"),
                    mpeg::Text("TCON", "Rock"),
                    mpeg::Text("TRCK", std::to_string(i % 20))};
        t.padding = 512;
        mpeg::Kopf k;
        std::string anfang = mpeg::Id3v2(t);
        for (int f = 0; f < 8; ++f) anfang += mpeg::Frame(k);
        std::string ende;
        for (int f = 0; f < 4; ++f) ende += mpeg::Frame(k);
        ende += mpeg::Id3v1("Titel", "Interpret", "Album", "2001", "Kommentar", i % 20, 17);
        std::string ordner = ordner_;
        if (mitOrdnern) {
            ordner += "/Interpret " + std::to_string(i / 1000) + "/Album " + std::to_string(i / 100 % 10);
            std::filesystem::create_directories(ordner);
        }
        pfade_.push_back(ordner + "/Lied " + std::to_string(i) + ".mp3");
        mpeg::DünneDateiSchreiben(pfade_.back(), anfang, 3000000 + static_cast<int64_t>(z() % 2000000), ende);
    }
}

MpegSammlung::~MpegSammlung() {
    std::error_code fehler;
    std::filesystem::remove_all(ordner_, fehler);
}
