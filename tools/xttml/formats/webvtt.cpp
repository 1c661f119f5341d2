#include "tools/xttml/formats/webvtt.h"

#include "tools/xttml/formats/markup.h"

#include <cmath>
#include <fmt/format.h>
#include <map>

namespace xttml {

namespace {

/// The classes of spans, each with the declaration of its rule.
using Classes = std::map<std::string, std::string>;

void AddClass(Classes& classes, const char* prefix, const char* property, Rgba color) {
    const std::string value = AlphaOf(color) == 0xFF ? HexColor(color) : fmt::format("{:08x}", color);
    classes.emplace(prefix + value, fmt::format("{}: #{}", property, value));
}

Classes ClassesOf(const Look& look) {
    Classes classes;
    if (look.color != usualColor)
        AddClass(classes, "color-", "color", look.color);
    if (AlphaOf(look.background) != 0)
        AddClass(classes, "background-", "background-color", look.background);
    return classes;
}

std::string WriteSpan(const Span& span) {
    const Look& look = span.look;
    std::string text = Escaped(span.text, {{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}});
    text = Tagged(text, "u", look.isUnderlined);
    text = Tagged(text, "i", look.isItalic);
    text = Tagged(text, "b", look.isBold);
    std::string names;
    for (const auto& [name, declaration] : ClassesOf(look))
        names += '.' + name;
    return names.empty() ? text : fmt::format("<c{}>{}</c>", names, text);
}

/// The rules and the blank line before them. That it ends in a carriage return, which ends lines in WebVTT as
/// a line feed does, lets FFmpeg 5 pass over the block as a part of the header: at one that it sees it stops.
std::string WriteRules(const Script& script) {
    Classes all;
    for (const Cue& cue : script.cues)
        for (const Line& line : cue.lines)
            for (const Span& span : line)
                all.merge(ClassesOf(span.look));
    std::string rules;
    for (const auto& [name, declaration] : all)
        rules += fmt::format("::cue(.{}) {{ {} }}\n", name, declaration);
    return rules.empty() ? "\n" : "\rSTYLE\n" + rules + '\n';
}

const char* SideName(Side side) {
    constexpr const char* names[] = {"left", "center", "right"};
    return names[static_cast<std::size_t>(side)];
}

/// A distance between two edges as a share of the side of the root that they lie on.
std::string Percent(double distance, std::int32_t side) {
    return fmt::format("{:g}%", std::round(10000 * distance / side) / 100);
}

std::string LineSetting(const Placement& placement, const render::Size& root) {
    const render::Box& area = placement.area;
    switch (placement.level) {
    case Level::TOP:
        return Percent(area.top, root.height);
    case Level::MIDDLE:
        return Percent((area.top + area.bottom) / 2, root.height) + ",center";
    case Level::BOTTOM:
        break;
    }
    return Percent(area.bottom, root.height) + ",end";
}

std::string Settings(const Cue& cue, const render::Size& root) {
    std::string align = cue.side == Side::CENTER ? "" : fmt::format(" align:{}", SideName(cue.side));
    if (!cue.placement)
        return align;
    const render::Box& area = cue.placement->area;
    return fmt::format(" line:{} position:{} size:{}{}", LineSetting(*cue.placement, root),
                       Percent(AnchorOf(cue.side, area), root.width), Percent(area.Width(), root.width),
                       align);
}

} // namespace

std::string WriteWebVtt(const Script& script) {
    std::string text = "WEBVTT\n" + WriteRules(script);
    for (const Cue& cue : script.cues)
        text += fmt::format("{} --> {}{}\n{}\n\n", FormatTime(cue.begin), FormatTime(cue.end),
                            Settings(cue, script.root), JoinLines(cue, "\n", WriteSpan));
    return text;
}

} // namespace xttml
