#pragma once
// Wo das Programm unter Linux seine Dateien ablegt (XDG) und findet (share/klangkartei).
#include <string>

std::string KonfigOrdner();            // $XDG_CONFIG_HOME/klangkartei
std::string DatenOrdner();             // $XDG_DATA_HOME/klangkartei
std::string ZwischenspeicherOrdner();  // $XDG_CACHE_HOME/klangkartei
std::string StandardIndexPfad();       // DatenOrdner() + "/Klangkt.kkt"
// Der mitgelieferte Datenordner share/klangkartei neben dem Programm (auch im Build-Baum).
std::string ProgrammDatenOrdner();
// Legt einen Ordner samt Eltern an; true, wenn er danach besteht.
bool OrdnerAnlegen(const std::string& pfad);
