#include "app/Datum.h"
#include "app/Zahlen.h"

#include <gtest/gtest.h>

TEST(Zahlen, IsNumeric) {
    EXPECT_FALSE(IstNumerisch(""));
    EXPECT_FALSE(IstNumerisch("   "));
    EXPECT_TRUE(IstNumerisch(" 12 "));
    EXPECT_TRUE(IstNumerisch("1,5"));
    EXPECT_TRUE(IstNumerisch("-1.5"));
    EXPECT_TRUE(IstNumerisch("+ 7"));
    EXPECT_TRUE(IstNumerisch(".5"));
    EXPECT_FALSE(IstNumerisch("1e3"));
    EXPECT_FALSE(IstNumerisch("12a"));
    EXPECT_FALSE(IstNumerisch("1.000,5"));
    EXPECT_FALSE(IstNumerisch("-"));
    EXPECT_EQ(*ZahlWert("1,5"), 1.5);
}

TEST(Zahlen, RundenHälftenZurGeraden) {
    EXPECT_EQ(RundenGerade(2.5), 2);
    EXPECT_EQ(RundenGerade(3.5), 4);
    EXPECT_EQ(RundenGerade(-2.5), -2);
    EXPECT_EQ(RundenGerade(27.5), 28);
    EXPECT_EQ(Int(-1.5), -2);
    EXPECT_EQ(Int(1.9), 1);
    EXPECT_DOUBLE_EQ(Runden(1.125, 2), 1.12);
    EXPECT_DOUBLE_EQ(Runden(2.5, 0), 2);
}

TEST(Zahlen, ÜberlaufUndZahlLesen) {
    int32_t l = 7;
    EXPECT_FALSE(LongAus(2147483648.0, l));
    EXPECT_EQ(l, 7);  // Ziel behält seinen Wert
    EXPECT_TRUE(LongAus(2147483647.4, l));
    EXPECT_EQ(l, 2147483647);
    int16_t i = 3;
    EXPECT_FALSE(IntegerAus(32767.5, i));  // rundet auf 32768
    EXPECT_EQ(i, 3);
    EXPECT_TRUE(IntegerAus(-32768, i));
    EXPECT_FALSE(LongAddieren(2147483647, 1, l));

    EXPECT_EQ(ZahlLesen(""), 0);
    EXPECT_EQ(ZahlLesen("abc"), 0);
    EXPECT_EQ(ZahlLesen(" 42 "), 42);
    EXPECT_EQ(ZahlLesen("2,5"), 2);
    EXPECT_EQ(ZahlLesen("99999999999"), 0);
}

TEST(Zahlen, GanzeZahlStreng) {
    EXPECT_EQ(GanzeZahlLesen("0"), 0);
    EXPECT_EQ(GanzeZahlLesen("-2147483648"), -2147483648LL);
    EXPECT_EQ(GanzeZahlLesen("+17"), 17);
    EXPECT_EQ(GanzeZahlLesen("9223372036854775807"), INT64_MAX);
    for (const char* kein :
         {"", "+", "-", "+-1", "--1", " 1", "1 ", "1,5", "1.0", "1e3", "0x10", "9223372036854775808"})
        EXPECT_FALSE(GanzeZahlLesen(kein)) << '"' << kein << '"';
}

TEST(Zahlen, Formate) {
    EXPECT_EQ(TausenderFormat(3145728), "3.145.728");
    EXPECT_EQ(TausenderFormat(999), "999");
    EXPECT_EQ(TausenderFormat(0), "0");
    EXPECT_EQ(ZweiStellenFormat(1234.5), "1.234,50");
    EXPECT_EQ(ZweiStellenFormat(0.125), "0,12");
}

TEST(Datum, LesenUndPrüfen) {
    Datum d;
    ASSERT_TRUE(DatumLesen("16.11.2001 20:15:00", d));
    EXPECT_EQ(d, (Datum{2001, 11, 16, 20, 15, 0}));
    EXPECT_TRUE(IstDatum("1.2.2003"));
    EXPECT_TRUE(IstDatum("2001-11-16"));
    EXPECT_TRUE(IstDatum("2001-11-16 20:15"));
    EXPECT_TRUE(IstDatum(" 16.11.2001 "));
    EXPECT_TRUE(IstDatum("29.02.2000"));
    EXPECT_FALSE(IstDatum("29.02.1900"));
    EXPECT_FALSE(IstDatum("31.02.2001"));
    EXPECT_FALSE(IstDatum("16.11.2001 24:00:00"));
    EXPECT_FALSE(IstDatum("16.11.01"));
    EXPECT_FALSE(IstDatum(""));
    EXPECT_FALSE(IstDatum("Lied"));
}

TEST(Datum, TexteUndTageszahl) {
    Datum d{2001, 11, 16, 20, 15, 0};
    EXPECT_EQ(DatumText(d), "16.11.2001");
    EXPECT_EQ(DatumZeitText(d), "16.11.2001 20:15:00");
    EXPECT_EQ(DatumSortText(d), "2001|11|16");
    EXPECT_EQ(DatumZeitSortText(Datum{2001, 1, 2, 3, 4, 5}), "2001|01|02 03:04:05");
    EXPECT_EQ(Tageszahl(Datum{1899, 12, 30}), 0);
    EXPECT_EQ(Tageszahl(Datum{2000, 1, 1}), 36526);  // wie CLng(#1/1/2000#)
    EXPECT_EQ(AusSekundenzahl(Sekundenzahl(d)), d);
    EXPECT_EQ(TageAddieren(Datum{2000, 2, 28}, 1), (Datum{2000, 2, 29}));
}

TEST(Datum, DifferenzenWieDateDiff) {
    Datum a{2001, 12, 31, 23, 59, 59}, b{2002, 1, 1, 0, 0, 0};
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Sekunde, a, b), 1);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Minute, a, b), 1);  // Grenzen, nicht volle Minuten
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Stunde, a, b), 1);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Tag, a, b), 1);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Monat, a, b), 1);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Monat, Datum{2001, 11, 30}, Datum{2003, 2, 1}), 15);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Monat, Datum{2003, 2, 1}, Datum{2001, 11, 30}), -15);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Minute, Datum{2001, 1, 1, 10, 0, 59}, Datum{2001, 1, 1, 10, 1, 0}), 1);
    EXPECT_EQ(DatumDifferenz(Zeiteinheit::Minute, Datum{2001, 1, 1, 10, 0, 0}, Datum{2001, 1, 1, 10, 0, 59}), 0);
}

TEST(Zahlen, ZahlLesenNimmtTausenderpunkte) {
    // So schreibt TausenderFormat Größen in die Liste; sortiert wird über ZahlLesen.
    EXPECT_EQ(ZahlLesen("3.145.728"), 3145728);
    EXPECT_EQ(ZahlLesen("1.500"), 1500);
    EXPECT_EQ(ZahlLesen("-12.345,6"), -12346);
    EXPECT_EQ(ZahlLesen(" 1.000 "), 1000);
    // Keine Dreiergruppen: der Punkt bleibt ein Komma.
    EXPECT_EQ(ZahlLesen("1.5"), 2);
    EXPECT_EQ(ZahlLesen("1.5000"), 2);
    EXPECT_EQ(ZahlLesen("1234.567"), 1235);
    EXPECT_EQ(ZahlLesen("1.234.5"), 0);
    EXPECT_EQ(ZahlLesen("1.234x"), 0);
}
