#pragma once
// Entwicklungs-Ablaufpunkte: "Prozedur: Text" auf stderr, nur in Debug-Builds und nur,
// wenn KLANGKARTEI_TRACE gesetzt ist. Im ausgelieferten Programm verschwindet der Aufruf.
#include <string_view>

#ifdef KK_TRACE_AKTIV
void TraceSchreiben(std::string_view prozedur, std::string_view text);
#define KK_TRACE(prozedur, text) TraceSchreiben((prozedur), (text))
#else
#define KK_TRACE(prozedur, text) ((void)0)
#endif
