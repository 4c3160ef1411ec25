#pragma once
// Ein frischer temporärer Ordner je Test, der danach wieder verschwindet.
#include <string>

class TestOrdner {
public:
    TestOrdner();
    // In basis, wenn es den Ordner gibt (etwa /dev/shm für viele kleine Schreibvorgänge).
    explicit TestOrdner(const std::string& basis);
    ~TestOrdner();
    TestOrdner(const TestOrdner&) = delete;
    TestOrdner& operator=(const TestOrdner&) = delete;

    const std::string& Pfad() const { return pfad_; }
    std::string operator/(const std::string& name) const { return pfad_ + "/" + name; }

private:
    std::string pfad_;
};

// Ganze Datei als Bytes lesen / schreiben (Ordner werden angelegt).
std::string DateiLesen(const std::string& pfad);
void DateiSchreiben(const std::string& pfad, const std::string& bytes);
