#pragma once
// Der erste MPEG-Frame-Kopf einer Datei und ein Xing-Block dahinter füllen die Header_*-Felder.
#include "app/DateiInfo.h"

#include <string>

class DateiLeser;

// Sucht FF FA/FB in den ersten 102400 Bytes und gibt die 32 Kopfbits als Text aus "0"/"1"
// zurück; "" wenn die Datei fehlt oder das Lesen scheitert. Setzt Header_Position (nur bei
// einem Fund), Header_VBR und bei einem Xing-Block Header_Frames direkt in info.
std::string Mp3HeaderLesen(const std::string& dateiname, DateiInfo& info);
std::string Mp3HeaderLesen(DateiLeser& datei, DateiInfo& info);

// Entschlüsselt den Kopf auf einer Kopie von info. Eine Datei von höchstens 4 Bytes oder ein
// leeres Ergebnis der Suche gibt die Kopie unverändert zurück. Was sich nicht berechnen lässt
// (Tabellenlücke, Division durch 0, Überlauf), behält seinen Wert.
DateiInfo HeaderLesen(const std::string& dateiname, const DateiInfo& info);
DateiInfo HeaderLesen(DateiLeser& datei, const DateiInfo& info);
