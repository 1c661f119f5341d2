#include "tools/xttml/formats/advanced_substation.h"

#include "tools/xttml/formats/markup.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <utility>

namespace xttml {

namespace {

constexpr int usualLinesOfRoot = 15; // the font size that nobody gave
constexpr int outlinesOfRoot = 360;  // the width of the outline of letters without a background
constexpr int marginsOfRoot = 20;    // what stays free around a cue that nobody has put anywhere
constexpr Rgba black = 0x000000FF;

/// Alpha counts transparency, and comes first.
std::string WriteColor(Rgba color) {
    const Rgba red = color >> 24U;
    const Rgba green = color >> 16U & 0xFFU;
    const Rgba blue = color >> 8U & 0xFFU;
    return fmt::format("&H{:02X}{:02X}{:02X}{:02X}", 0xFFU - AlphaOf(color), blue, green, red);
}

/// As the digits of a keypad stand.
int AlignmentOf(const Cue& cue) {
    const Level level = cue.placement ? cue.placement->level : Level::BOTTOM;
    return 1 + static_cast<int>(cue.side) + 3 * static_cast<int>(level);
}

std::uint32_t FontSizeOf(const Look& look, const render::Size& root) {
    const auto largest = static_cast<std::uint32_t>(std::max(root.height, usualLinesOfRoot));
    return look.fontSize == 0 ? largest / usualLinesOfRoot : std::min(look.fontSize, largest);
}

/// What follows a style's name. A background is a box in the colour of the outline.
std::string WriteStyle(const Look& look, int alignment, const render::Size& root) {
    const auto flag = [](bool value) { return value ? -1 : 0; };
    const bool hasBox = AlphaOf(look.background) != 0;
    const std::string outline = WriteColor(hasBox ? look.background : black);
    return fmt::format("sans-serif,{},{},{},{},{},{},{},{},{},100,100,0,0,{},{},0,{},0,0,0,1",
                       FontSizeOf(look, root), WriteColor(look.color), WriteColor(look.color), outline,
                       outline, flag(look.isBold), flag(look.isItalic), flag(look.isUnderlined),
                       flag(look.isStruckThrough), hasBox ? 3 : 1, root.height / outlinesOfRoot, alignment);
}

/// The styles met so far.
class Styles {
public:
    explicit Styles(const render::Size& root) : root_(root) {}

    std::string NameOf(const Look& look, int alignment) {
        const std::string name = fmt::format("Style{}", names_.size() + 1);
        const auto [known, isNew] = names_.emplace(WriteStyle(look, alignment, root_), name);
        if (isNew)
            lines_ += fmt::format("Style: {},{}\n", name, known->first);
        return known->second;
    }
    /// A line for each.
    const std::string& Lines() const { return lines_; }

private:
    render::Size root_;
    std::map<std::string, std::string> names_; // by what they say
    std::string lines_;
};

std::string WriteTime(MediaTime time) {
    constexpr MediaTime hour = 3600000;
    const std::string text = FormatTime(time % hour);
    return fmt::format("{}:{}", time / hour, text.substr(3, 8));
}

/// Hundredths of a second, and at least one of them.
std::pair<MediaTime, MediaTime> RoundedTimes(const Cue& cue) {
    const auto rounded = [](MediaTime time) { return (time + 5) / 10 * 10; };
    const MediaTime begin = rounded(cue.begin);
    return {begin, std::max(rounded(cue.end), begin + 10)};
}

/// Left, right and vertical, px. Lines that stand side by side keep clear of each other; a \pos would not let
/// them, and is needed in the middle alone, which knows no vertical margin.
std::string WriteMargins(const Cue& cue, const render::Size& root) {
    if (!cue.placement)
        return fmt::format("{0},{0},{1}", root.width / marginsOfRoot, root.height / marginsOfRoot);
    const render::Box& area = cue.placement->area;
    const double vertical = cue.placement->level == Level::TOP ? area.top : root.height - area.bottom;
    return fmt::format("{:.0f},{:.0f},{:.0f}", area.left, root.width - area.right, vertical);
}

std::string WritePosition(const Cue& cue) {
    if (!cue.placement || cue.placement->level != Level::MIDDLE)
        return "";
    const render::Box& area = cue.placement->area;
    return fmt::format("{{\\pos({:.0f},{:.0f})}}", AnchorOf(cue.side, area), (area.top + area.bottom) / 2);
}

std::string WriteText(const Cue& cue, Styles& styles) {
    return WritePosition(cue) + JoinLines(cue, "\\N", [&](const Span& span) {
               std::string text = Escaped(span.text, {{"{", "\\{"}, {"\\", "\\\u2060"}});
               if (span.look == cue.look)
                   return text;
               return fmt::format("{{\\r{}}}{}{{\\r}}", styles.NameOf(span.look, AlignmentOf(cue)), text);
           });
}

std::string WriteEvent(const Cue& cue, const render::Size& root, Styles& styles) {
    const auto [begin, end] = RoundedTimes(cue);
    const std::string style = styles.NameOf(cue.look, AlignmentOf(cue));
    return fmt::format("Dialogue: 0,{},{},{},,{},,{}\n", WriteTime(begin), WriteTime(end), style,
                       WriteMargins(cue, root), WriteText(cue, styles));
}

} // namespace

std::string WriteAdvancedSubstation(const Script& script) {
    Styles styles(script.root);
    std::string events;
    for (const Cue& cue : script.cues)
        events += WriteEvent(cue, script.root, styles);
    return fmt::format("[Script Info]\n"
                       "ScriptType: v4.00+\n"
                       "PlayResX: {}\n"
                       "PlayResY: {}\n"
                       "WrapStyle: 1\n"
                       "ScaledBorderAndShadow: yes\n"
                       "\n"
                       "[V4+ Styles]\n"
                       "Format: Name, Fontname, Fontsize, PrimaryColour, SecondaryColour, OutlineColour, "
                       "BackColour, Bold, Italic, Underline, StrikeOut, ScaleX, ScaleY, Spacing, Angle, "
                       "BorderStyle, Outline, Shadow, Alignment, MarginL, MarginR, MarginV, Encoding\n"
                       "{}\n"
                       "[Events]\n"
                       "Format: Layer, Start, End, Style, Name, MarginL, MarginR, MarginV, Effect, Text\n"
                       "{}",
                       script.root.width, script.root.height, styles.Lines(), events);
}

} // namespace xttml
