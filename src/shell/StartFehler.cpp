#include "shell/StartFehler.h"

std::string StartFehlerText(int32_t nummer) {
    return "Das Programm konnte nicht vollständig geladen werden. (Fehler " + std::to_string(nummer) +
           ").\n\nStellen Sie sicher, daß das Programm durch das Setup korrekt installiert wurde. Installieren Sie "
           "es gegebenenfalls erneut oder in der neuesten Version. Wenn das Problem bestehen bleibt, wenden Sie sich "
           "bitte an den Autor.";
}
