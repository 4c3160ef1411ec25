#pragma once
// Ein Text der Tabelle in vier Bytes. Eine Million Einträge mit je 42 Textfeldern passen so in
// wenige hundert Megabyte: ein leerer Text kostet nichts, die Bytes liegen in einem gemeinsamen
// Speicher, der nur wächst (KTextSpeicher.cpp).
//
// Regeln:
// - Ein Text wird nie verändert. Zuweisen, += und assign legen neuen Text ab und nehmen dessen
//   Griff; der alte bleibt bis zum Ende des Prozesses liegen (wenige Bytes je Änderung).
//   Darum bleibt eine string_view auf einen KText gültig, auch wenn das Feld danach neu gesetzt
//   wird, und zwei Felder dürfen sich einen Griff teilen.
// - Ablegen ist aus mehreren Threads zugleich erlaubt: jeder Thread schreibt in seinen eigenen
//   Block. Lesen ist immer erlaubt, wenn der Griff selbst ordentlich übergeben wurde.
// - Vergleiche (==, <=>) gehen nach dem Inhalt, nie nach dem Griff.
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <type_traits>

class KText;
// Alles, was sich als string_view lesen lässt, außer KText selbst. (Ohne concept: moc liest
// diesen Kopf über DateiInfo.h mit und versteht <concepts> nicht.)
template <typename T> inline constexpr bool IstTextArtig =
    std::is_convertible_v<const T&, std::string_view> && !std::is_same_v<std::remove_cvref_t<T>, KText>;

// Speicher der Texte: Griff → Anfang des abgelegten Textes; Ablegen gibt den Griff (0 = leer).
const char* KTextAnfang(uint32_t griff);
uint32_t KTextAblegen(std::string_view text);
// Der Inhalt zu einem Griff (0: leer).
inline std::string_view KTextSicht(uint32_t griff);
// Bytes, die der Speicher bisher von der Ablage geholt hat (für Messungen).
size_t KTextSpeicherBytes();
// Gibt den ganzen Speicher frei. Nur für Programme, die Millionen kurzer Läufe in einem Prozess
// machen (Fuzz-Ziele): erlaubt nur mit einem einzigen Thread und wenn kein KText mit Inhalt mehr lebt.
void KTextSpeicherZurücksetzen();

class KText {
public:
    KText() = default;
    KText(std::string_view s) : griff_(KTextAblegen(s)) {}
    KText(const std::string& s) : KText(std::string_view(s)) {}
    KText(const char* s) : KText(std::string_view(s)) {}

    KText& operator=(std::string_view s) { return Setzen(s); }
    KText& operator=(const std::string& s) { return Setzen(s); }
    KText& operator=(const char* s) { return Setzen(s); }
    KText& assign(std::string_view s) { return Setzen(s); }
    KText& assign(size_t anzahl, char z) { return Setzen(std::string(anzahl, z)); }
    KText& operator+=(std::string_view s) { return s.empty() ? *this : Setzen(str().append(s)); }
    KText& operator+=(char z) { return Setzen(str() + z); }
    void clear() { griff_ = 0; }

    bool empty() const { return griff_ == 0; }
    size_t size() const { return sicht().size(); }
    size_t length() const { return size(); }
    const char* data() const { return sicht().data(); }
    const char* c_str() const { return data(); }  // der Speicher schließt jeden Text mit NUL ab
    std::string_view sicht() const;               // bleibt gültig bis zum Ende des Prozesses
    std::string str() const { return std::string(sicht()); }
    operator std::string_view() const { return sicht(); }
    operator std::string() const { return str(); }

    char operator[](size_t i) const { return data()[i]; }
    char front() const { return data()[0]; }
    char back() const { return data()[size() - 1]; }
    const char* begin() const { return data(); }
    const char* end() const { return data() + size(); }
    std::string substr(size_t pos = 0, size_t n = std::string::npos) const {
        return std::string(sicht().substr(pos, n));
    }
    size_t find(std::string_view s, size_t pos = 0) const { return sicht().find(s, pos); }
    size_t find(char z, size_t pos = 0) const { return sicht().find(z, pos); }
    size_t rfind(char z, size_t pos = std::string::npos) const { return sicht().rfind(z, pos); }
    bool starts_with(std::string_view s) const { return sicht().starts_with(s); }
    bool ends_with(std::string_view s) const { return sicht().ends_with(s); }
    int compare(std::string_view s) const { return sicht().compare(s); }

    // Der Griff selbst: gleicher Griff heißt gleicher Inhalt (umgekehrt nicht).
    uint32_t Griff() const { return griff_; }

    friend bool operator==(const KText& a, const KText& b) { return a.griff_ == b.griff_ || a.sicht() == b.sicht(); }
    template <typename T, std::enable_if_t<IstTextArtig<T>, int> = 0>
    friend bool operator==(const KText& a, const T& b) {
        return a.sicht() == std::string_view(b);
    }
    friend auto operator<=>(const KText& a, const KText& b) { return a.sicht() <=> b.sicht(); }
    template <typename T, std::enable_if_t<IstTextArtig<T>, int> = 0>
    friend auto operator<=>(const KText& a, const T& b) {
        return a.sicht() <=> std::string_view(b);
    }
    friend std::string operator+(const KText& a, const KText& b) { return a.str().append(b.sicht()); }
    template <typename T, std::enable_if_t<IstTextArtig<T>, int> = 0>
    friend std::string operator+(const KText& a, const T& b) {
        return a.str().append(std::string_view(b));
    }
    template <typename T, std::enable_if_t<IstTextArtig<T>, int> = 0>
    friend std::string operator+(const T& a, const KText& b) {
        return std::string(std::string_view(a)).append(b.sicht());
    }
    friend std::string operator+(const KText& a, char b) { return a.str() + b; }
    friend std::string operator+(char a, const KText& b) { return a + b.str(); }
    friend std::ostream& operator<<(std::ostream& aus, const KText& t);

private:
    KText& Setzen(std::string_view s) {
        griff_ = KTextAblegen(s);
        return *this;
    }
    uint32_t griff_ = 0;
};

inline std::string_view KTextSicht(uint32_t griff) {
    if (griff == 0) return std::string_view("", 0);
    const auto* p = reinterpret_cast<const unsigned char*>(KTextAnfang(griff));
    // Kopf: ein Byte Länge, oder 255 und vier Bytes Länge
    if (p[0] < 255) return std::string_view(reinterpret_cast<const char*>(p + 1), p[0]);
    const uint32_t länge = uint32_t(p[1]) | uint32_t(p[2]) << 8 | uint32_t(p[3]) << 16 | uint32_t(p[4]) << 24;
    return std::string_view(reinterpret_cast<const char*>(p + 5), länge);
}
inline std::string_view KText::sicht() const { return KTextSicht(griff_); }
