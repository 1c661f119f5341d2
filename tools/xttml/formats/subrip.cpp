#include "tools/xttml/formats/subrip.h"

#include "tools/xttml/formats/markup.h"

#include <fmt/format.h>

namespace xttml {

namespace {

std::string WriteSpan(const Span& span) {
    const Look& look = span.look;
    std::string text =
        Escaped(span.text, {{"<", "<\u2060"}, {"{", "{\u2060"}, {"\\", "\\\u2060"}, {"-->", "--\u2060>"}});
    text = Tagged(text, "s", look.isStruckThrough);
    text = Tagged(text, "u", look.isUnderlined);
    text = Tagged(text, "i", look.isItalic);
    text = Tagged(text, "b", look.isBold);
    return look.color == usualColor
               ? text
               : fmt::format("<font color=\"#{}\">{}</font>", HexColor(look.color), text);
}

std::string WriteTime(MediaTime time) {
    std::string text = FormatTime(time);
    text[text.rfind('.')] = ',';
    return text;
}

} // namespace

std::string WriteSubRip(const Script& script) {
    std::string text;
    std::size_t number = 0;
    for (const Cue& cue : script.cues)
        text += fmt::format("{}\n{} --> {}\n{}\n\n", ++number, WriteTime(cue.begin), WriteTime(cue.end),
                            JoinLines(cue, "\n", WriteSpan));
    return text;
}

} // namespace xttml
