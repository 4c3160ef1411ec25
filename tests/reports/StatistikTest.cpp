// Index-Statistik mit durchgerechneten Zahlen: Summen, Teiler 1204, Durchschnitte, Daten.
#include "BerichteHilfen.h"

#include "reports/Statistik.h"

#include <gtest/gtest.h>

namespace {
std::vector<std::string> StatistikZeilen(const Kartei& k) {
    std::vector<std::string> z;
    for (const auto& s : IndexStatistik(k)) z.push_back(s.überschrift + ": " + s.text);
    return z;
}
}  // namespace

TEST(Statistik, LeererIndex) {
    TestUmgebung u;
    EXPECT_EQ(StatistikZeilen(u.k), (std::vector<std::string>{
                                        "Gesamtanzahl aller Dateien: 0, davon 0 auf austauschbaren Datenträgern",
                                        "Gesamtgröße: (keine Dateien mit Dateigröße gefunden)",
                                        "Gesamtspieldauer: (keine Dateien mit Spieldauer gefunden)",
                                        "Verwaltung: (keine Dateien mit Datumsangabe gefunden)",
                                    }));
}

TEST(Statistik, DurchgerechneteZahlen) {
    TestUmgebung u;  // heute: 16.11.2001
    DateiInfo& a = Neu(u.k, "/m/a.mp3");
    a.Datei_Größe = 1262485504;  // / 1024 / 1204 = 1024 MB genau
    a.Header_Dauer = 230;
    a.Datei_HinzugefügtAm = "01.11.2001";
    DateiInfo& b = Neu(u.k, "/m/b.mp3");
    b.Datei_Größe = 0;  // zählt mit
    b.Header_Dauer = 180;
    b.Datei_HinzugefügtAm = "09.11.2001";
    b.Datei_Wechselmedium = "CD 1";
    DateiInfo& c = Neu(u.k, "/m/c.mp3");
    c.Datei_Größe = -1;  // zählt nicht
    c.Datei_HinzugefügtAm = "kein Datum";
    EXPECT_EQ(StatistikZeilen(u.k),
              (std::vector<std::string>{
                  "Gesamtanzahl aller Dateien: 3, davon 1 auf austauschbaren Datenträgern",
                  "Gesamtgröße: 1.262.485.504 Bytes (1.024,00 MB), durchschnittlich 631.242.752 Bytes",
                  "Gesamtspieldauer: 6:50, durchschnittlich 3:25",
                  // 15 + 7 Tage bis heute, 2 Dateien in 8 Tagen.
                  "Verwaltung: Die neueste Datei im Index ist vom 09.11.2001, die älteste vom 01.11.2001. Die "
                  "Dateien befinden sich durchschnittlich seit 11 Tagen im Index. Jeden Tag werden durchschnittlich "
                  "0,25 Datei(en) hinzugefügt.",
              }));
}

TEST(Statistik, AlleAmSelbenTagOhneSatzJeTag) {
    TestUmgebung u;
    for (const char* datum : {"05.11.2001", "5.11.2001 10:00:00", "05.11.2001"}) {
        DateiInfo& d = Neu(u.k, "/m/x.mp3");
        d.Datei_HinzugefügtAm = datum;
        d.Datei_Größe = 3145728;
        d.Header_Dauer = 3601;
    }
    const auto z = IndexStatistik(u.k);
    EXPECT_EQ(z[1].text, "9.437.184 Bytes (7,65 MB), durchschnittlich 3.145.728 Bytes");
    EXPECT_EQ(z[2].text, "3:00:03, durchschnittlich 1:00:01");
    EXPECT_EQ(z[3].text, "Die neueste Datei im Index ist vom 05.11.2001, die älteste vom 05.11.2001. Die Dateien "
                         "befinden sich durchschnittlich seit 11 Tagen im Index. ");
}
