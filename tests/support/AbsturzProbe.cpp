// Schüsse auf schreibende Kindprozesse; der Elternprozess vergleicht den Inhalt danach.
#include "support/AbsturzProbe.h"

#include "app/Tabelle.h"
#include "index/IndexDatei.h"
#include "support/Attrappen.h"

#include <chrono>
#include <csignal>
#include <functional>
#include <random>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {
int meldeFd = -1;  // Schreibseite des Rohrs im Kindprozess

void Melden(char c) {
    if (meldeFd >= 0) (void)!::write(meldeFd, &c, 1);
}

struct Kind {
    pid_t pid = -1;
    int lesen = -1;
};

Kind Starten(const AbsturzVorgang& vorgang) {
    int rohr[2];
    if (::pipe(rohr) != 0) return {};
    const pid_t pid = ::fork();
    if (pid == 0) {
        ::close(rohr[0]);
        meldeFd = rohr[1];
        const bool gelungen = vorgang();
        Melden('e');  // das Schreiben ist vorbei; was jetzt noch kommt, ist nur das Prozessende
        ::_exit(gelungen ? 0 : 1);
    }
    ::close(rohr[1]);
    return {pid, rohr[0]};
}

// Wartet auf die Meldung c des Kindes; false, wenn es vorher endete.
bool Abwarten(const Kind& kind, char erwartet) {
    char c = 0;
    ssize_t n;
    while ((n = ::read(kind.lesen, &c, 1)) < 0 && errno == EINTR) {}
    return n == 1 && c == erwartet;
}

// Rückgabe des Kindes wie in der Shell: 0..255 oder 128 + Signal.
int Ernten(Kind& kind) {
    int status = 0;
    while (::waitpid(kind.pid, &status, 0) < 0 && errno == EINTR) {}
    ::close(kind.lesen);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

// Ein ungestörter Lauf; die Dauer vom Beginn des Schreibens bis zum Ende, -1 bei einem Fehler.
int64_t UngestörtLaufen(const AbsturzVorgang& vorgang) {
    Kind kind = Starten(vorgang);
    if (kind.pid < 0) return -1;
    const bool begonnen = Abwarten(kind, 's');
    const auto anfang = std::chrono::steady_clock::now();
    const bool beendet = Abwarten(kind, 'e');
    const auto dauer = std::chrono::steady_clock::now() - anfang;
    if (Ernten(kind) != 0 || !begonnen || !beendet) return -1;
    return std::chrono::duration_cast<std::chrono::microseconds>(dauer).count();
}
}  // namespace

void AbsturzSchreibenBeginnt() { Melden('s'); }

AbsturzBericht AbsturzProben(const AbsturzVorgang& vorgang, const std::function<std::string()>& inhalt, int schüsse,
                             uint32_t saat, const std::function<bool(const std::string&)>& zwischenZulässig) {
    AbsturzBericht b;
    const std::hash<std::string> prüfsumme;
    // Ein erster Lauf bringt den Inhalt in seine Form (etwa einen Tag mit Auffüllung).
    if (UngestörtLaufen(vorgang) < 0) {
        b.fehler.push_back("Der Vorgang gelingt nicht einmal ungestört");
        return b;
    }
    const size_t a = prüfsumme(inhalt());
    const int64_t hin = UngestörtLaufen(vorgang);
    const size_t neu = prüfsumme(inhalt());
    const int64_t zurück = UngestörtLaufen(vorgang);
    if (hin < 0 || zurück < 0 || neu == a || prüfsumme(inhalt()) != a) {
        b.fehler.push_back("Der Vorgang schaltet ungestört nicht sauber zwischen zwei Zuständen hin und her");
        return b;
    }
    b.schreibenUs = std::max(hin, zurück);
    std::mt19937 zufall(saat);
    std::uniform_int_distribution<int64_t> wann(0, b.schreibenUs);
    for (int schuss = 1; schuss <= schüsse; ++schuss) {
        Kind kind = Starten(vorgang);
        if (kind.pid < 0) {
            b.fehler.push_back("Schuss " + std::to_string(schuss) + ": kein Kindprozess");
            break;
        }
        const bool begonnen = Abwarten(kind, 's');
        if (begonnen) std::this_thread::sleep_for(std::chrono::microseconds(wann(zufall)));
        ::kill(kind.pid, SIGKILL);
        const int rückgabe = Ernten(kind);
        ++b.schüsse;
        if (rückgabe == 128 + SIGKILL) ++b.getötet;
        else if (rückgabe == 0 && begonnen) ++b.vorherFertig;
        else
            b.fehler.push_back("Schuss " + std::to_string(schuss) + ": Vorgang scheiterte (" +
                               std::to_string(rückgabe) + ")");
        const std::string stand = inhalt();
        const size_t jetzt = prüfsumme(stand);
        if (jetzt == a) ++b.alt;
        else if (jetzt == neu) ++b.neu;
        else if (zwischenZulässig && zwischenZulässig(stand)) ++b.zwischen;
        else b.fehler.push_back("Schuss " + std::to_string(schuss) + ": weder alter noch neuer Inhalt");
    }
    return b;
}

AbsturzVorgang IndexUmschalten(const std::string& pfad) {
    return [pfad] {
        TestUmgebung u;
        u.k.E.Mp3TagLesen = "000";  // nichts von der Platte nachlesen: nur der Index zählt
        if (!DateiLaden(u.k, pfad) || u.k.DateiAnzahl < 1) return false;
        Kartei& k = u.k;
        const int32_t n = k.DateiAnzahl;
        if (k.DateiPfade[n] == "/umschalten.mp3") {
            IndexGrößeÄndern(k, n - 1, true);
            k.DateiAnzahl = n - 1;
        } else {
            IndexGrößeÄndern(k, n + 1, true);
            k.DateiAnzahl = n + 1;
            k.DateiPfade[n + 1] = "/umschalten.mp3";
            k.DateiDaten[n + 1] = k.DateiDaten[1];
        }
        DateiGeändertSetzen(k);
        AbsturzSchreibenBeginnt();
        return DateiSpeichern(k, pfad, false);
    };
}
