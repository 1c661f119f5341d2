#include "tools/xttml/formats/plain_text.h"

#include "tools/xttml/formats/markup.h"

namespace xttml {

std::string WritePlainText(const Script& script) {
    std::string text;
    for (const Cue& cue : script.cues) {
        text += text.empty() ? "" : "\n";
        text += JoinLines(cue, "\n", [](const Span& span) { return span.text; }) + '\n';
    }
    return text;
}

} // namespace xttml
