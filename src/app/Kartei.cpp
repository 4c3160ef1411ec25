#include "app/Kartei.h"

#include "app/Trace.h"
#include "app/Version.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

std::string ProgrammTitelMitVersion() { return std::string(ProgrammTitel) + " " + KK_VERSION_TEXT; }

#ifdef KK_TRACE_AKTIV
void TraceSchreiben(std::string_view prozedur, std::string_view text) {
    static const bool an = std::getenv("KLANGKARTEI_TRACE") != nullptr;
    if (an) std::fprintf(stderr, "%.*s: %.*s\n", int(prozedur.size()), prozedur.data(), int(text.size()), text.data());
}
#endif
