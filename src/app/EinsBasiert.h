#pragma once
// Feld mit Zählung ab 1, wie die Tabelle und alle Listen des Programms.
// Index 0 gibt es nicht; UBound() ist die obere Grenze (0 = leer).
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

template <typename T> class EinsBasiert {
public:
    EinsBasiert() = default;
    explicit EinsBasiert(int32_t obergrenze) { ReDim(obergrenze); }

    // Neu anlegen: alle Elemente leer.
    void ReDim(int32_t obergrenze) {
        daten_.clear();
        daten_.resize(obergrenze > 0 ? static_cast<size_t>(obergrenze) : 0);
    }
    // Größe ändern, Inhalt bleibt.
    void ReDimPreserve(int32_t obergrenze) { daten_.resize(obergrenze > 0 ? static_cast<size_t>(obergrenze) : 0); }
    int32_t UBound() const { return static_cast<int32_t>(daten_.size()); }
    bool GültigerIndex(int32_t i) const { return i >= 1 && i <= UBound(); }

    T& operator[](int32_t i) {
        assert(GültigerIndex(i));
        return daten_[static_cast<size_t>(i - 1)];
    }
    const T& operator[](int32_t i) const {
        assert(GültigerIndex(i));
        return daten_[static_cast<size_t>(i - 1)];
    }
    T& operator()(int32_t i) { return (*this)[i]; }
    const T& operator()(int32_t i) const { return (*this)[i]; }

    // Am Ende anhängen (Obergrenze + 1).
    void Anhängen(T wert) { daten_.push_back(std::move(wert)); }
    void Tauschen(int32_t a, int32_t b) { std::swap((*this)[a], (*this)[b]); }

    auto begin() { return daten_.begin(); }
    auto end() { return daten_.end(); }
    auto begin() const { return daten_.begin(); }
    auto end() const { return daten_.end(); }
    std::vector<T>& Vektor() { return daten_; }
    const std::vector<T>& Vektor() const { return daten_; }

private:
    std::vector<T> daten_;
};
