#pragma once
// Eine erzeugte Sammlung dünner MP3-Dateien von 3 bis 5 MB (Anfang und Ende geschrieben, die
// Mitte ausgelassen) mit ID3v1 und ID3v2, für die Benchmarks. Wird am Ende wieder entfernt.
#include <string>
#include <vector>

class MpegSammlung {
public:
    // mitOrdnern: in 10 × 10 Ordnern "Interpret N/Album M", sonst alle in einem Ordner.
    MpegSammlung(int anzahl, bool mitOrdnern);
    ~MpegSammlung();
    MpegSammlung(const MpegSammlung&) = delete;
    MpegSammlung& operator=(const MpegSammlung&) = delete;

    const std::string& Ordner() const { return ordner_; }
    const std::vector<std::string>& Pfade() const { return pfade_; }

private:
    std::string ordner_;
    std::vector<std::string> pfade_;
};
