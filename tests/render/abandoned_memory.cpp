#include "runtime/export.h"

/// What Fontconfig keeps for ever, some 300 bytes a process.
extern "C" XTTML_API const char* __lsan_default_suppressions();
const char* __lsan_default_suppressions() {
    return "leak:libfontconfig\n";
}
