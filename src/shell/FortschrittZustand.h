#pragma once
// Zustand des Fortschrittsfensters.
struct FortschrittZustand {};
