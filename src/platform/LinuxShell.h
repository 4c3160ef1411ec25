#pragma once
// Shell unter Linux: xdg-open, Programme starten, freedesktop-Papierkorb, Zwischenablage.
#include "app/Dienste.h"

#include <functional>

class LinuxShell : public Shell {
public:
    bool Öffnen(const std::string& dateiOderAdresse) override;
    int64_t ProgrammStarten(const std::string& programm, const std::vector<std::string>& argumente,
                            bool mitFokus) override;
    bool InPapierkorb(const std::string& pfad, std::string& fehler) override;
    // Das Fenster-Programm setzt hier die Qt-Zwischenablage ein; ohne sie wl-copy/xclip.
    bool InZwischenablage(const std::string& text) override;
    std::function<bool(const std::string&)> zwischenablage;
};
