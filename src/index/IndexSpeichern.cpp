// Der Ablauf einer Speicherung: Ziel prüfen, sperren, fremde Änderungen erkennen, eine eigene
// temporäre Datei schreiben, auf die Platte bringen und in einem Schritt an die Stelle der alten
// Datei setzen. Den Inhalt schreibt IndexTextSchreiben.
#include "app/HalbeDatei.h"
#include "app/Kartei.h"
#include "app/Pfade.h"
#include "app/SystemFehler.h"
#include "index/IndexDatei.h"
#include "index/IndexZugriff.h"
#include "shell/Fortschritt.h"

#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
bool Fehlermeldung(Kartei& k, int fehler) {
    FortschrittZeigenEnde(k);  // sonst bliebe das Hauptfenster gesperrt
    k.ui.MeldungZeigen("Es ist ein Fehler beim Speichern der Indexdatei aufgetreten. (Fehler " +
                           std::to_string(fehler) + ")\n" + SystemFehlerText(fehler) + ".",
                       Meldung::Ausrufezeichen);
    return false;
}

bool NichtSpeicherbar(Kartei& k, const std::string& pfad, const std::string& grund) {
    k.ui.MeldungZeigen("Die Indexdatei '" + pfad + "' konnte nicht gespeichert werden.\n" + grund,
                       Meldung::Ausrufezeichen);
    return false;
}

// Nur eine gewöhnliche, beschreibbare Datei (oder keine) darf ersetzt werden.
bool ZielPrüfen(Kartei& k, const std::string& ziel, const std::string& pfad) {
    int fehler = 0;
    const char art = DateiArtLesen(ziel, fehler);
    if (art == '-') return true;
    if (art == '!') return NichtSpeicherbar(k, pfad, SystemFehlerText(fehler) + ".");
    if (art != 'f')
        return NichtSpeicherbar(
            k, pfad, "Unter diesem Namen steht " + DateiArtText(art) + ", keine Indexdatei. Sie wird nicht ersetzt.");
    struct stat st;
    // Auch root soll eine schreibgeschützte Indexdatei nicht ersetzen.
    if (::stat(ziel.c_str(), &st) == 0 && (st.st_mode & 0222) == 0)
        return NichtSpeicherbar(k, pfad, SystemFehlerText(EACCES) + ": die Datei ist schreibgeschützt.");
    if (::access(ziel.c_str(), W_OK) != 0) return NichtSpeicherbar(k, pfad, SystemFehlerText(errno) + ".");
    return true;
}

// Hat ein anderes Programm die Datei seit dem Laden geändert, entscheidet die Person.
bool FremdeÄnderungPrüfen(Kartei& k, const std::string& ziel, const std::string& pfad) {
    const IndexDateiStand& geladen = k.IndexZugriff.geladen;
    if (!geladen.bekannt || geladen.ziel != ziel) return true;
    const IndexDateiStand jetzt = IndexDateiStandLesen(ziel);
    if (!jetzt.bekannt || jetzt == geladen) return true;
    return k.ui.MeldungZeigen("Die Indexdatei wurde inzwischen von einem anderen Programm geändert:\n'" + pfad +
                                  "'\nWenn Sie jetzt speichern, gehen die Änderungen des anderen Programms "
                                  "verloren. Mit 'Nein' bleibt die Datei, wie sie ist, und Ihre Änderungen "
                                  "bleiben im Programm erhalten.\n\nMöchten Sie die Indexdatei trotzdem "
                                  "überschreiben?",
                              Meldung::JaNeinAusruf) == Meldung::Ja;
}

std::string OrdnerVon(const std::string& ziel) {
    if (ziel.find('/') == std::string::npos) return ".";
    const std::string ordner = PfadZurückgeben(ziel);
    return ordner.empty() ? "/" : ordner;
}

// Eigene temporäre Dateien: ".NAME.speichern-XXXXXX" im Ordner des Ziels.
std::string TempPräfix(const std::string& ziel) { return "." + DateinameAusPfad(ziel) + ".speichern-"; }

// Reste abgebrochener Speicherungen. Nur unter der Sperre: wer speichert, hält sie.
void AlteTempDateienEntfernen(const std::string& ordner, const std::string& präfix) {
    DIR* d = ::opendir(ordner.c_str());
    if (!d) return;
    while (const dirent* e = ::readdir(d)) {
        const std::string_view name = e->d_name;
        if (name.size() == präfix.size() + 6 && name.starts_with(präfix)) ::unlinkat(::dirfd(d), e->d_name, 0);
    }
    ::closedir(d);
}

// Rechte (und wo erlaubt Besitzer) der alten Datei; eine neue bekommt die übliche Maske.
void RechteÜbernehmen(int fd, const std::string& ziel) {
    struct stat st;
    if (::stat(ziel.c_str(), &st) != 0) {
        const mode_t maske = ::umask(0);
        ::umask(maske);
        ::fchmod(fd, 0666 & ~maske);
        return;
    }
    if ((st.st_uid != ::geteuid() || st.st_gid != ::getegid()) && ::fchown(fd, st.st_uid, st.st_gid) != 0)
        (void)!::fchown(fd, uid_t(-1), st.st_gid);
    ::fchmod(fd, st.st_mode & 07777);
}

void OrdnerSynchronisieren(const std::string& ordner) {
    const int fd = ::open(ordner.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

// Inhalt schreiben und auf die Platte bringen. 0, errno, oder -1 bei Abbruch.
int TempDateiFüllen(Kartei& k, int fd, bool mitFortschritt) {
    if (mitFortschritt) {
        FortschrittZeigenStarten(k, k.DateiAnzahl, true, true, false, "Speichere Indexdatei");
        mitFortschritt = FortschrittFensterOffen(k);
    }
    bool abgebrochen = false;
    int fehler = IndexTextSchreiben(k, fd, mitFortschritt, abgebrochen);
    if (abgebrochen) return -1;
    if (fehler == 0 && ::fsync(fd) != 0) fehler = errno;
    return fehler;
}
}  // namespace

bool DateiSpeichern(Kartei& k, const std::string& pfad, bool mitFortschritt) {
    // Eine abgelehnte Datei wird nie überschrieben, auch nicht mit einem leeren Index.
    if (k.IndexZugriff.NichtsGeladen) {
        k.ui.MeldungZeigen("Es ist keine Indexdatei geladen; es wurde nichts gespeichert.", Meldung::Information);
        return false;
    }
    const std::string ziel = IndexZielAuflösen(pfad);
    if (!ZielPrüfen(k, ziel, pfad)) return false;
    IndexSperre& gehalten = k.IndexZugriff.sperre;
    const bool dauerhaft = gehalten.Gehalten() && gehalten.Exklusiv() && gehalten.GiltFür(ziel);
    IndexSperre eigene;
    if (!dauerhaft && DoesExist(ziel) && !IndexDateiSperren(k, ziel, pfad, true, eigene)) return false;
    if (!FremdeÄnderungPrüfen(k, ziel, pfad)) return false;

    const std::string ordner = OrdnerVon(ziel), präfix = TempPräfix(ziel);
    if (dauerhaft || eigene.Gehalten()) AlteTempDateienEntfernen(ordner, präfix);
    std::string temp = ordner + "/" + präfix + "XXXXXX";
    const int fd = ::mkostemp(temp.data(), O_CLOEXEC);
    if (fd < 0) {
        const int fehler = errno;
        return NichtSpeicherbar(k, pfad,
                                "Im Ordner '" + ordner +
                                    "' kann keine temporäre Datei angelegt werden: " + SystemFehlerText(fehler) + ".");
    }
    HalbeDateiMerken(temp.c_str());
    ::flock(fd, LOCK_EX);  // wer nach dem Umbenennen wartet, wartet auf die neue Datei
    RechteÜbernehmen(fd, ziel);
    const int fehler = TempDateiFüllen(k, fd, mitFortschritt);
    if (fehler != 0) {
        ::close(fd);
        ::unlink(temp.c_str());
        HalbeDateiFertig();
        if (fehler < 0) FortschrittZeigenEnde(k);
        return fehler < 0 ? false : Fehlermeldung(k, fehler);
    }
    FortschrittZeigenEnde(k);

    // rename ersetzt die alte Datei in einem Schritt: es gibt keinen Augenblick ohne Index.
    const bool ersetzt = ::rename(temp.c_str(), ziel.c_str()) == 0;
    const int grund = errno;
    if (!ersetzt) ::unlink(temp.c_str());
    HalbeDateiFertig();
    if (!ersetzt) {
        ::close(fd);
        if (grund == EISDIR || grund == ENOTEMPTY || grund == EEXIST || grund == EBUSY)
            return NichtSpeicherbar(k, pfad, "Die bestehende Datei konnte nicht überschrieben werden.");
        return Fehlermeldung(k, grund);
    }
    OrdnerSynchronisieren(ordner);
    IndexDateiStand& geladen = k.IndexZugriff.geladen;
    if (!geladen.bekannt || geladen.ziel == ziel) geladen = IndexDateiStandLesen(ziel);
    if (dauerhaft) gehalten.Übernehmen(fd, true);
    else ::close(fd);

    k.LetzteSpeicherung = k.uhr.Jetzt();
    k.DateiGeändert = false;
    return true;
}
