#pragma once
// Datenträger unter Linux: Einhängepunkte aus /proc/self/mountinfo.
#include "app/Dienste.h"

class LinuxDatenträger final : public Datenträger {
public:
    std::string Wurzel(const std::string& pfad) override;
    bool IstWechselmedium(const std::string& wurzel) override;
    std::string Bezeichnung(const std::string& wurzel) override;
};
