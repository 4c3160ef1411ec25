#pragma once
// Die Hilfedatei (hilfe/index.htm im mitgelieferten Datenordner) und die Angaben des
// Info-Fensters.
#include <string>

struct Kartei;

// Datei oder Adresse mit dem Standardprogramm des Desktops öffnen; misslingt das (kein xdg-open,
// kein Browser), eine Meldung und false.
bool AnzeigenOderMelden(Kartei& k, const std::string& dateiOderAdresse);

// Pfad der Hilfedatei unter datenOrdner.
std::string HilfeDatei(const std::string& datenOrdner);
// Öffnet die Hilfedatei mit ihrem Standardprogramm. Fehlt sie, eine Meldung und false; dann wird
// nichts geöffnet.
bool HilfeAnzeigen(Kartei& k, const std::string& datenOrdner);

// "Version 1.0.0" für lblProgrammversion.
std::string ProgrammVersionText();
// Der Urheberrechtsvermerk der Version für lblProgrammCopyright.
std::string ProgrammCopyright();
