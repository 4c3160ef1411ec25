#pragma once
// Zustand der Suche und der Ergebnisliste.
struct SuchZustand {};
struct ListenZustand {};
