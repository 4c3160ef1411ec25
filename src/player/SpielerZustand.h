#pragma once
// Zustand der Spieler-Anbindung und der Abspiel-Erkennung.
struct SpielerZustand {};
