#pragma once
// Die Genre-Tabelle: Zeile n (ab 1) hält den Genre-Code n-1. Code 255 heißt "kein Genre".
#include <cstdint>
#include <string>
#include <string_view>

int32_t GenreAnzahl();  // 145
// Name zum Code; leer, wenn der Code hinter der Tabelle liegt.
const std::string& GenreName(int32_t code);
// Code zum Namen, von Zeile 1 an gesucht (genau); -1, wenn es ihn nicht gibt.
int32_t GenreCode(const std::string& name);
// Dasselbe ohne Rücksicht auf Groß/Klein (gleich lang): "dance hall" ist Code 125.
int32_t GenreCodeOhneGroßKlein(std::string_view name);
