#pragma once
// Was die Teile des Tag-Editors (Ablauf, Speichern, Funktionen) gemeinsam brauchen.
#include "tags/TagEditor.h"

#include <string>

// Eintragsnummer der gezeigten Datei; 0, wenn keine gezeigt wird.
int32_t TagEditorEintrag(const TagEditor& e);
// MedienInfosEintragen über den Arbeitsdaten der gezeigten Datei; die genannten Gruppen behalten
// danach, was vorher in ihren Steuerelementen stand. false, wenn die Datei fehlt.
bool TagEditorAnsichtAuffrischen(Kartei& k, TagEditor& e, const std::string& flags, bool v1Behalten, bool v2Behalten,
                                 bool indexBehalten);
