#pragma once
// Zustand beim Hinzufügen (Sammelbereich, Suchliste).
struct AufnahmeZustand {};
