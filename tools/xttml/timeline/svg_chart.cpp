#include "tools/xttml/timeline/svg_chart.h"

#include <fmt/format.h>
#include <iterator>
#include <string_view>

namespace xttml {

namespace {

std::string Escaped(std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        switch (character) {
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '&':
            escaped += "&amp;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

std::string ColorText(const RgbaColor& color) {
    return color.uAlpha == 0 ? "none"
                             : fmt::format("#{:02x}{:02x}{:02x}", color.uRed, color.uGreen, color.uBlue);
}

/// "item forced" as a selector: ".item.forced".
std::string Selector(std::string_view names) {
    std::string selector = ".";
    for (const char character : names)
        selector += character == ' ' ? '.' : character;
    return selector;
}

// Half of a border lies outside its box, where it is not seen.
std::string StyleRules() {
    std::string rules;
    for (const Mark mark : allMarks) {
        const MarkStyle& style = StyleOf(mark);
        const std::string selector = Selector(style.name);
        rules += fmt::format(
            "{0} rect{{fill:{1};stroke:{2};stroke-width:2;stroke-dasharray:{3}}}{0} text{{fill:{4}}}\n",
            selector, ColorText(style.fill), ColorText(style.border), style.isDashed ? "6" : "none",
            ColorText(style.ink));
    }
    return rules;
}

void Append(std::string& svg, const Shape& shape) {
    fmt::format_to(std::back_inserter(svg),
                   "<svg class=\"{}\" x=\"{:.1f}\" y=\"{:.1f}\" width=\"{:.1f}\" height=\"{:.1f}\">",
                   StyleOf(shape.mark).name, shape.box.left, shape.box.top, shape.box.Width(),
                   shape.box.Height());
    if (!shape.title.empty())
        svg += "<title>" + Escaped(shape.title) + "</title>";
    svg += "<rect width=\"100%\" height=\"100%\"/>";
    if (!shape.text.empty())
        svg += fmt::format("<text x=\"{}\" y=\"{}\">{}</text>", chartTextMargin, chartFontSize,
                           Escaped(shape.text));
    svg += "</svg>\n";
}

} // namespace

std::string SvgOf(const Chart& chart) {
    std::string svg = fmt::format(
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"{0}\" height=\"{1}\" viewBox=\"0 0 {0} {1}\" "
        "font-family=\"sans-serif\" font-size=\"{2}\">\n<style>\n{3}</style>\n",
        chart.size.width, chart.size.height, chartFontSize, StyleRules());
    for (const Shape& shape : chart.shapes)
        Append(svg, shape);
    return svg + "</svg>\n";
}

} // namespace xttml
