// Linux-Umgebung: die Standardanwendung für audio/mpeg (Exec-Zeile, Desktop-Datei, xdg-mime), die Orte
// der Dateien und die Dienste beider Programme.
#include "platform/LinuxDienste.h"
#include "platform/StandardAnwendung.h"
#include "platform/Verzeichnisse.h"
#include "support/TestOrdner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <optional>

namespace {
// Setzt eine Umgebungsvariable für die Dauer eines Tests.
class Umgebungsvariable {
public:
    Umgebungsvariable(const char* name, const std::string& wert) : name_(name) {
        if (const char* alt = std::getenv(name)) alt_ = alt;
        setenv(name, wert.c_str(), 1);
    }
    ~Umgebungsvariable() {
        if (alt_) setenv(name_, alt_->c_str(), 1);
        else unsetenv(name_);
    }
    Umgebungsvariable(const Umgebungsvariable&) = delete;
    Umgebungsvariable& operator=(const Umgebungsvariable&) = delete;

private:
    const char* name_;
    std::optional<std::string> alt_;
};

// Ein Ersatz für xdg-mime, der die Kennung ausgibt.
void XdgMimeAnlegen(const std::string& ordner, const std::string& ausgabe) {
    DateiSchreiben(ordner + "/xdg-mime",
                   "#!/bin/sh\n[ \"$1 $2 $3\" = \"query default audio/mpeg\" ] || exit 3\necho '" + ausgabe + "'\n");
    std::filesystem::permissions(ordner + "/xdg-mime", std::filesystem::perms::owner_all);
}
}  // namespace

TEST(StandardAnwendung, ExecZeileOhneFeldcodesUndAnführungszeichen) {
    EXPECT_EQ(ExecBereinigen("audacious %U"), "audacious");
    EXPECT_EQ(ExecBereinigen("vlc --started-from-file %U"), "vlc --started-from-file");
    EXPECT_EQ(ExecBereinigen("\"/opt/Mein Spieler/bin/spieler\" %f --neu"), "/opt/Mein Spieler/bin/spieler --neu");
    EXPECT_EQ(ExecBereinigen("spieler %i %c %k %F"), "spieler");
    EXPECT_EQ(ExecBereinigen("spieler --lautstärke 100%%"), "spieler --lautstärke 100%");
    EXPECT_EQ(ExecBereinigen("\"/opt/a\\\\b \\\"c\\\"\""), "/opt/a\\b \"c\"");
    EXPECT_EQ(ExecBereinigen("  spieler  "), "spieler");
    EXPECT_EQ(ExecBereinigen("%U"), "");
    EXPECT_EQ(ExecBereinigen("spieler 5%"), "spieler 5%");
}

TEST(StandardAnwendung, DesktopDateiAusDenXdgOrdnernUndIhreExecZeile) {
    TestOrdner t;
    Umgebungsvariable daten("XDG_DATA_HOME", t / "home");
    Umgebungsvariable ordner("XDG_DATA_DIRS", t / "sys1" + ":relativ:" + t / "sys2");
    DateiSchreiben(t / "home/applications/kk-spieler.desktop",
                   "[Desktop Entry]\r\nName=Spieler\r\nExec[de]=falsch\r\nExec = \"/opt/Mein\\sSpieler/spieler\" %U\r\n"
                   "[Desktop Action Neu]\r\nExec=anders\r\n");
    DateiSchreiben(t / "sys1/applications/kk-spieler.desktop", "[Desktop Entry]\nExec=zweite Wahl\n");
    DateiSchreiben(t / "sys2/applications/kde4/alt.desktop",
                   "[Desktop Action Neu]\nExec=aktion %f\n[Desktop Entry]\nExec=altspieler -q %f\n");
    DateiSchreiben(t / "sys2/applications/ohne.desktop", "[Desktop Entry]\nName=Ohne Exec\n");

    EXPECT_EQ(DesktopDateiSuchen("kk-spieler.desktop"), t / "home/applications/kk-spieler.desktop");
    EXPECT_EQ(DesktopDateiBefehl(DesktopDateiSuchen("kk-spieler.desktop")), "/opt/Mein Spieler/spieler");
    EXPECT_EQ(DesktopDateiSuchen("kde4-alt.desktop"), t / "sys2/applications/kde4/alt.desktop");
    EXPECT_EQ(DesktopDateiBefehl(DesktopDateiSuchen("kde4-alt.desktop")), "altspieler -q");
    EXPECT_EQ(DesktopDateiBefehl(t / "sys2/applications/ohne.desktop"), "");
    EXPECT_EQ(DesktopDateiSuchen("fehlt.desktop"), "");
    EXPECT_EQ(DesktopDateiSuchen("../home/applications/kk-spieler.desktop"), "");
    EXPECT_EQ(DesktopDateiSuchen(""), "");
}

TEST(StandardAnwendung, XdgMimeNenntDieDesktopDatei) {
    TestOrdner t;
    Umgebungsvariable daten("XDG_DATA_HOME", t / "daten");
    Umgebungsvariable ordner("XDG_DATA_DIRS", t / "leer");
    DateiSchreiben(t / "daten/applications/kk-spieler.desktop", "[Desktop Entry]\nExec=kkspieler %U\n");
    std::filesystem::create_directories(t / "bin");
    Umgebungsvariable pfad("PATH", t / "bin");

    // Ohne xdg-mime gibt es keine Standardanwendung.
    EXPECT_EQ(StandardAnwendungsBefehl("audio/mpeg"), "");

    XdgMimeAnlegen(t / "bin", "kk-spieler.desktop");
    EXPECT_EQ(StandardAnwendungsBefehl("audio/mpeg"), "kkspieler");
    EXPECT_EQ(StandardAnwendungsBefehl("audio/ogg"), "");  // xdg-mime scheitert
    XdgMimeAnlegen(t / "bin", "unbekannt.desktop");
    EXPECT_EQ(StandardAnwendungsBefehl("audio/mpeg"), "");
}

TEST(LinuxDienste, OrteFolgenXdgUndDatenordnerLiegtNebenDemProgramm) {
    TestOrdner o;
    Umgebungsvariable konfig("XDG_CONFIG_HOME", o / "konf");
    Umgebungsvariable daten("XDG_DATA_HOME", o / "daten");
    EXPECT_EQ(EinstellungsDatei(), o / "konf/klangkartei/klangkartei.conf");
    EXPECT_FALSE(std::filesystem::exists(o / "daten/klangkartei"));
    EXPECT_EQ(StandardIndexBereitstellen(), o / "daten/klangkartei/Klangkt.kkt");
    EXPECT_TRUE(std::filesystem::is_directory(o / "daten/klangkartei"));
    // Der Build legt data/ unter share/klangkartei ab; das Programm findet es über seinen Pfad.
    EXPECT_TRUE(std::filesystem::exists(ProgrammDatenOrdner() + "/Ineturl.dat")) << ProgrammDatenOrdner();

    LinuxDienste dienste;
    EXPECT_EQ(dienste.registrierung.Dateipfad(), o / "konf/klangkartei/klangkartei.conf");
}
