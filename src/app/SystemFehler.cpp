// Deutsche Texte zu den Fehlernummern des Systems.
#include "app/SystemFehler.h"

#include <cerrno>

std::string SystemFehlerText(int fehler) {
    switch (fehler) {
    case 0: return "Kein Fehler";
    case EACCES:
    case EPERM: return "Zugriff verweigert";
    case ENOENT: return "Datei oder Ordner nicht gefunden";
    case ENOSPC: return "Kein Platz mehr auf dem Datenträger";
    case EDQUOT: return "Der Speicherplatz des Benutzers ist erschöpft";
    case EROFS: return "Der Datenträger ist schreibgeschützt";
    case EISDIR: return "Es handelt sich um einen Ordner";
    case ENOTDIR: return "Ein Teil des Pfades ist kein Ordner";
    case EEXIST: return "Die Datei besteht bereits";
    case EBUSY:
    case ETXTBSY: return "Die Datei wird gerade benutzt";
    case EIO: return "Ein- oder Ausgabefehler des Datenträgers";
    case ENAMETOOLONG: return "Der Dateiname ist zu lang";
    case ELOOP: return "Zu viele Verknüpfungen im Pfad";
    case EMFILE:
    case ENFILE: return "Zu viele offene Dateien";
    case EFBIG: return "Die Datei ist zu groß";
    case EXDEV: return "Die Dateien liegen auf verschiedenen Datenträgern";
    case ENOMEM: return "Nicht genügend Arbeitsspeicher";
    case EINTR: return "Der Vorgang wurde unterbrochen";
    case EWOULDBLOCK: return "Die Datei ist von einem anderen Programm gesperrt";
    case ENXIO: return "Das Gerät ist nicht vorhanden";
    case ENODEV: return "Es ist keine gewöhnliche Datei";
    case ESTALE: return "Die Datei auf dem Netzlaufwerk ist nicht mehr gültig";
    case ENOTCONN:
    case EHOSTDOWN:
    case ETIMEDOUT: return "Die Verbindung zum Netzlaufwerk ist unterbrochen";
    default: return "Systemfehler " + std::to_string(fehler);
    }
}
