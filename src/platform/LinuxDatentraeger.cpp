#include "platform/LinuxDatentraeger.h"

#include "app/Pfade.h"
#include "app/Texte.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

namespace {
constexpr long kProcMagie = 0x9fa0;  // PROC_SUPER_MAGIC

// Ganze Datei; /proc-Dateien melden keine Größe, daher bis zum Ende lesen.
std::string DateiGanzLesen(const std::string& pfad, size_t grenze) {
    std::string inhalt;
    const int fd = ::open(pfad.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return inhalt;
    char puffer[16384];
    while (inhalt.size() < grenze) {
        const ssize_t n = ::read(fd, puffer, sizeof puffer);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        inhalt.append(puffer, size_t(n));
    }
    ::close(fd);
    return inhalt;
}

std::string EchterPfad(const std::string& pfad) {
    char puffer[PATH_MAX];
    return ::realpath(pfad.c_str(), puffer) ? std::string(puffer) : std::string();
}

bool IstEins(const std::string& datei) { return Trim(Ersetzen(DateiGanzLesen(datei, 64), "\n", "")) == "1"; }
}  // namespace

LinuxDatenträger::LinuxDatenträger() : LinuxDatenträger(Quellen{}) {}

LinuxDatenträger::LinuxDatenträger(Quellen quellen) : q_(std::move(quellen)) {
    struct statfs fs {};
    if (::statfs(q_.mountinfo.c_str(), &fs) == 0 && fs.f_type == kProcMagie)
        wächter_ = ::open(q_.mountinfo.c_str(), O_RDONLY | O_CLOEXEC);
}

LinuxDatenträger::~LinuxDatenträger() {
    if (wächter_ >= 0) ::close(wächter_);
}

bool LinuxDatenträger::TabelleGeändert() {
    if (!gelesen_) return true;
    if (wächter_ >= 0) {
        pollfd p{wächter_, POLLPRI, 0};
        return ::poll(&p, 1, 0) > 0 && (p.revents & (POLLPRI | POLLERR)) != 0;
    }
    struct stat st {};
    if (::stat(q_.mountinfo.c_str(), &st) != 0) return stand_.größe != -1;
    return st.st_dev != stand_.gerät || st.st_ino != stand_.knoten || st.st_size != stand_.größe ||
           st.st_mtim.tv_sec != stand_.geändert.tv_sec || st.st_mtim.tv_nsec != stand_.geändert.tv_nsec;
}

void LinuxDatenträger::TabelleLesen() {
    if (wächter_ < 0) {
        struct stat st {};
        stand_ = ::stat(q_.mountinfo.c_str(), &st) == 0 ? Stand{st.st_dev, st.st_ino, st.st_size, st.st_mtim} : Stand{};
    }
    tabelle_ = EinhängungenLesen(DateiGanzLesen(q_.mountinfo, size_t(64) << 20));
    gelesen_ = true;
    ++tabelleGelesen_;
    wechselGültig_ = namenGültig_ = false;
}

void LinuxDatenträger::Aktualisieren() {
    // Einmal lesen und erst wieder, wenn sich etwas ein- oder ausgehängt hat: die Wurzel wird
    // für jede aufgenommene Datei gefragt.
    if (TabelleGeändert()) TabelleLesen();
}

std::string LinuxDatenträger::Wurzel(const std::string& pfad) {
    if (!IstVollerPfad(pfad)) return {};
    Aktualisieren();
    const Einhängung* e = EinhängungFür(tabelle_, pfad);
    const std::string punkt = e ? e->punkt : std::string("/");
    // Ein Ordner der /media-Art, der selbst nicht eingehängt ist: ein fehlender Datenträger.
    std::string form = MedienWurzelForm(pfad);
    return form.size() > punkt.size() ? form : punkt;
}

bool LinuxDatenträger::IstWechselmedium(const std::string& wurzel) {
    Aktualisieren();
    if (wechselGültig_ && wurzel == wechselWurzel_) return wechselErgebnis_;
    ++medienGeprüft_;
    wechselErgebnis_ = MediumPrüfen(wurzel);
    wechselWurzel_ = wurzel;
    wechselGültig_ = true;
    return wechselErgebnis_;
}

bool LinuxDatenträger::MediumPrüfen(const std::string& wurzel) const {
    const Einhängung* e = EinhängungAn(tabelle_, wurzel);
    if (!e) return !wurzel.empty() && MedienWurzelForm(wurzel) == wurzel;
    if (WechselDateisystem(e->typ)) return true;
    return e->major != 0 && BlockgerätWechselbar(e->major, e->minor);
}

std::string LinuxDatenträger::GerätPfad(unsigned major, unsigned minor) const {
    return EchterPfad(q_.sys + "/dev/block/" + std::to_string(major) + ":" + std::to_string(minor));
}

bool LinuxDatenträger::BlockgerätWechselbar(unsigned major, unsigned minor) const {
    const std::string gerät = GerätPfad(major, minor);
    if (gerät.empty()) return false;
    if (gerät.find("/usb") != std::string::npos) return true;
    // Eine Partition hat kein eigenes "removable"; das steht bei ihrer Platte darüber.
    const std::string hier = gerät + "/removable";
    return IstEins(DoesExist(hier) ? hier : PfadZurückgeben(gerät) + "/removable");
}

std::string LinuxDatenträger::BezeichnungSuchen(const std::string& gerätName) const {
    std::string gefunden;
    DIR* ordner = ::opendir(q_.bezeichnungen.c_str());
    if (!ordner) return gefunden;
    while (const dirent* e = ::readdir(ordner)) {
        const std::string name = e->d_name;
        if (name == "." || name == "..") continue;
        char ziel[PATH_MAX];
        const ssize_t n = ::readlink((q_.bezeichnungen + "/" + name).c_str(), ziel, sizeof ziel - 1);
        if (n <= 0) continue;
        if (DateinameAusPfad(std::string_view(ziel, size_t(n))) == gerätName) {
            gefunden = HexEntschlüsseln(name);
            break;
        }
    }
    ::closedir(ordner);
    return gefunden;
}

std::string LinuxDatenträger::Bezeichnung(const std::string& wurzel) {
    Aktualisieren();
    if (namenGültig_ && wurzel == namenWurzel_) return namenErgebnis_;
    std::string name;
    const Einhängung* e = EinhängungAn(tabelle_, wurzel);
    if (e && e->major != 0) {
        const std::string gerät = GerätPfad(e->major, e->minor);
        if (!gerät.empty()) name = BezeichnungSuchen(DateinameAusPfad(gerät));
    }
    if (name.empty()) name = DateinameAusPfad(wurzel);
    namenWurzel_ = wurzel;
    namenErgebnis_ = name;
    namenGültig_ = true;
    return name;
}
