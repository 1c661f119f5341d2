#include "tools/xttml/formats/cue_lines.h"

#include "render/background.h"
#include "tools/xttml/output/item_text.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <string_view>

namespace xttml {

namespace {

constexpr const char* noBreakSpace = "\xC2\xA0";

Rgba RgbaOf(const x_ttml_color& color) {
    return Rgba{color.red} << 24U | Rgba{color.green} << 16U | Rgba{color.blue} << 8U | color.alpha;
}

Look LookOfRun(const DisplayItem& item, std::uint32_t run) {
    x_ttml_styling styling;
    styling.size = sizeof styling;
    x_ttml_run_get_styling(&item, run, &styling);
    return LookOf(styling);
}

/// Without control characters: tab and carriage return are spaces, the others their pictures.
std::string Printable(std::string text) {
    const auto isSpace = [](char character) { return character == '\t' || character == '\r'; };
    std::replace_if(text.begin(), text.end(), isSpace, ' ');
    return OnOneLine(text);
}

void Append(Line& line, const std::string& text, const Look& look) {
    if (text.empty())
        return;
    if (line.empty() || !(line.back().look == look))
        line.push_back({"", look});
    line.back().text += text;
}

/// Appends text to the last line, and a line for each line feed in it.
void Append(std::vector<Line>& lines, const std::string& text, const Look& look) {
    std::size_t begin = 0;
    for (std::size_t end = text.find('\n'); end != std::string::npos; end = text.find('\n', begin)) {
        Append(lines.back(), Printable(text.substr(begin, end - begin)), look);
        lines.emplace_back();
        begin = end + 1;
    }
    Append(lines.back(), Printable(text.substr(begin)), look);
}

bool IsBlank(const Line& line) {
    return std::all_of(line.begin(), line.end(), [](const Span& span) {
        return span.text.find_first_not_of(' ') == std::string::npos;
    });
}

void DropBlankEnds(std::vector<Line>& lines) {
    lines.erase(std::find_if_not(lines.rbegin(), lines.rend(), IsBlank).base(), lines.end());
    lines.erase(lines.begin(), std::find_if_not(lines.begin(), lines.end(), IsBlank));
}

} // namespace

Look LookOf(const x_ttml_styling& styling) {
    Look look;
    look.isBold = styling.is_bold != 0;
    look.isItalic = styling.is_italic != 0;
    look.isUnderlined = styling.text_decoration == X_TTML_TEXT_DECORATION_UNDERLINE;
    look.isStruckThrough = styling.text_decoration == X_TTML_TEXT_DECORATION_LINE_THROUGH;
    look.color = RgbaOf(styling.color);
    look.background = RgbaOf(render::BackgroundOf(styling));
    look.fontSize = styling.font_size;
    return look;
}

std::vector<Line> LinesOf(const DisplayItem& item, render::WhiteSpace whiteSpace, const Look& look) {
    std::vector<Line> lines(1);
    std::uint32_t run = 0;
    for (const render::TextPiece& piece : VisiblePieces(item, whiteSpace))
        Append(lines, piece.text, LookOfRun(item, run++));
    DropBlankEnds(lines);
    for (Line& line : lines)
        if (IsBlank(line))
            line = {{noBreakSpace, look}};
    return lines;
}

} // namespace xttml
