#pragma once
// Prüft vor jeder Datei eines Stapels, ob sie erreichbar ist, und fragt sonst nach.
#include <cstdint>

struct Kartei;

// 0 = mit der Datei weitermachen, 1 = diese überspringen, 2 = Vorgang beenden.
int16_t DateiNichtVerfügbarPrüfen(Kartei& k, int32_t position, bool fortschritt, bool festesMediumÜberspringen);
