// Der Speicher hinter KText: bis zu 1024 Blöcke zu 4 MB, ein Griff ist Block << 22 | Stelle.
// Jeder Thread schreibt in seinen eigenen Block, darum braucht Ablegen keine Sperre; nur das
// Holen eines neuen Blocks zählt einen gemeinsamen Zähler weiter. Blöcke werden nie freigegeben.
#include "app/KText.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>
#include <ostream>

namespace {
constexpr uint32_t kStellenBits = 22;
constexpr size_t kBlockGröße = size_t(1) << kStellenBits;
constexpr uint32_t kBlöcke = 1024;
// Größere Texte bekommen einen Block für sich allein, sonst bliebe vom laufenden zu viel leer.
constexpr size_t kEigenerBlockAb = kBlockGröße / 4;
// Kurze Texte wiederholen sich (Jahre, Genres, Interpreten, "2.3.0"): ein kleines Verzeichnis je
// Thread gibt für gleichen Inhalt den Griff des zuletzt abgelegten zurück.
constexpr size_t kTeilenBisLänge = 48;
constexpr size_t kVerzeichnisPlätze = 8192;

std::array<std::atomic<char*>, kBlöcke> gBlöcke{};
std::atomic<uint32_t> gNächsterBlock{1};  // Block 0 bleibt leer: Griff 0 heißt "kein Text"
std::atomic<size_t> gBytes{0};

uint32_t BlockHolen(size_t größe) {
    const uint32_t nummer = gNächsterBlock.fetch_add(1, std::memory_order_relaxed);
    if (nummer >= kBlöcke) throw std::bad_alloc();
    char* block = static_cast<char*>(std::malloc(größe));
    if (!block) throw std::bad_alloc();
    gBlöcke[nummer].store(block, std::memory_order_release);
    gBytes.fetch_add(größe, std::memory_order_relaxed);
    return nummer;
}

size_t KopfGröße(size_t länge) { return länge < 255 ? 1 : 5; }

void Schreiben(char* ziel, std::string_view text) {
    auto* p = reinterpret_cast<unsigned char*>(ziel);
    const size_t kopf = KopfGröße(text.size());
    if (kopf == 1) {
        p[0] = static_cast<unsigned char>(text.size());
    } else {
        const auto n = static_cast<uint32_t>(text.size());
        p[0] = 255;
        p[1] = n & 0xFF;
        p[2] = (n >> 8) & 0xFF;
        p[3] = (n >> 16) & 0xFF;
        p[4] = n >> 24;
    }
    std::memcpy(p + kopf, text.data(), text.size());
    p[kopf + text.size()] = 0;
}

struct ThreadBlock {
    uint32_t nummer = 0;
    size_t stelle = kBlockGröße;  // voll: beim ersten Ablegen einen holen
    std::array<uint32_t, kVerzeichnisPlätze> verzeichnis{};
};
thread_local ThreadBlock tBlock;

uint32_t NeuAblegen(std::string_view text) {
    const size_t bedarf = KopfGröße(text.size()) + text.size() + 1;
    if (bedarf > kEigenerBlockAb) {
        const uint32_t nummer = BlockHolen(bedarf);
        Schreiben(gBlöcke[nummer].load(std::memory_order_relaxed), text);
        return nummer << kStellenBits;
    }
    ThreadBlock& t = tBlock;
    if (t.stelle + bedarf > kBlockGröße) {
        t.nummer = BlockHolen(kBlockGröße);
        t.stelle = 0;
    }
    const uint32_t griff = t.nummer << kStellenBits | uint32_t(t.stelle);
    Schreiben(gBlöcke[t.nummer].load(std::memory_order_relaxed) + t.stelle, text);
    t.stelle += bedarf;
    return griff;
}

size_t Streuwert(std::string_view text) {
    uint64_t h = 0xCBF29CE484222325ULL;
    for (const char z : text) h = (h ^ static_cast<unsigned char>(z)) * 0x100000001B3ULL;
    return size_t(h ^ (h >> 29));
}
}  // namespace

const char* KTextAnfang(uint32_t griff) {
    return gBlöcke[griff >> kStellenBits].load(std::memory_order_acquire) + (griff & (kBlockGröße - 1));
}

uint32_t KTextAblegen(std::string_view text) {
    if (text.empty()) return 0;
    if (text.size() > UINT32_MAX) throw std::bad_alloc();
    if (text.size() > kTeilenBisLänge) return NeuAblegen(text);
    uint32_t& platz = tBlock.verzeichnis[Streuwert(text) % kVerzeichnisPlätze];
    if (platz != 0 && KTextSicht(platz) == text) return platz;
    platz = NeuAblegen(text);
    return platz;
}

size_t KTextSpeicherBytes() { return gBytes.load(std::memory_order_relaxed); }

void KTextSpeicherZurücksetzen() {
    // Der laufende Block des Threads bleibt als Block 1 stehen: ein neuer kostete je Lauf 4 MB.
    const uint32_t behalten = tBlock.nummer;
    char* weiter = behalten != 0 ? gBlöcke[behalten].exchange(nullptr) : nullptr;
    const uint32_t benutzt = std::min(gNächsterBlock.load(), kBlöcke);
    for (uint32_t i = 1; i < benutzt; ++i) std::free(gBlöcke[i].exchange(nullptr));
    tBlock = ThreadBlock{};
    gNächsterBlock.store(weiter ? 2 : 1);
    gBytes.store(weiter ? kBlockGröße : 0);
    if (!weiter) return;
    gBlöcke[1].store(weiter);
    tBlock.nummer = 1;
    tBlock.stelle = 0;
}

std::ostream& operator<<(std::ostream& aus, const KText& t) { return aus << t.sicht(); }
