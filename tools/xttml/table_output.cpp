#include "tools/xttml/table_output.h"

#include "tools/xttml/item_text.h"
#include "tools/xttml/media_time.h"
#include "tools/xttml/styling_words.h"
#include "tools/xttml/text_encoding.h"

#include <algorithm>
#include <array>
#include <functional>

namespace xttml {

namespace {

enum Column { NUMBER, BEGIN, END, BOX, COLOR, BACKGROUND, FONT, ALIGN, TEXT, COLUMNS };

using Row = std::array<std::string, COLUMNS>;
using Widths = std::array<std::size_t, COLUMNS>;
using RowVisitor = std::function<void(const Row&)>;

constexpr std::size_t widestColumn = 32;

std::string PixelsOrDash(std::uint32_t pixels) {
    return pixels == 0 ? "-" : std::to_string(pixels);
}

std::string Font(const StylingAttrib& styling) {
    std::string font = PixelsOrDash(styling.uFontSize) + "/" + PixelsOrDash(styling.uLineHeight);
    if (styling.iFontWeight != 0)
        font += " bold";
    if (styling.iFontStyle != 0)
        font += " italic";
    if (styling.eTextDecoration != TEXT_DECORATION_NONE)
        font += std::string(" ") + TextDecorationWord(styling);
    return font;
}

void SetStyling(Row& row, const StylingAttrib& styling) {
    row[COLOR] = OnOneLine(Utf8FromLatin1(styling.strColor));
    row[BACKGROUND] = OnOneLine(Utf8FromLatin1(styling.strBackgroundColor));
    row[FONT] = Font(styling);
    if (styling.iVisibility != 0)
        row[TEXT] += "[hidden] ";
}

Row HeadRow() {
    return {"#", "BEGIN", "END", "BOX", "COLOUR", "BACKGROUND", "FONT/LINE", "ALIGN", "TEXT"};
}

Row ItemRow(const DisplayItem& item, std::size_t number, const ImageBlock& images) {
    Row row;
    row[NUMBER] = std::to_string(number);
    row[BEGIN] = FormatTime(item.iGetBeginTime());
    row[END] = FormatTime(item.iGetEndTime());
    row[BOX] = BoxText(item.styling);
    row[ALIGN] = std::string(TextAlignWord(item.styling)) + " " + DisplayAlignWord(item.styling);
    if (item.fgForcedDisplay)
        row[TEXT] += "[forced] ";
    SetStyling(row, item.styling);
    const auto* const image = dynamic_cast<const ImageItem*>(&item);
    row[TEXT] += image ? ImageLine(*image, images) : TerminalText(WholeText(item));
    return row;
}

Row RunRow(const Sentence& run, std::size_t number) {
    Row row;
    row[BEGIN] = "run " + std::to_string(number);
    SetStyling(row, *run.pStylingAttrib);
    row[TEXT] += TerminalText({run.vecText.data(), run.vecText.size()});
    return row;
}

void VisitRows(const std::vector<DisplayItem*>& items, const ImageBlock& images, const RowVisitor& visit) {
    visit(HeadRow());
    for (std::size_t i = 0; i < items.size(); ++i) {
        visit(ItemRow(*items[i], i + 1, images));
        const std::vector<Sentence*>& runs = Runs(*items[i]);
        for (std::size_t j = 0; j < runs.size(); ++j)
            if (runs[j]->pStylingAttrib)
                visit(RunRow(*runs[j], j + 1));
    }
}

std::string Line(const Row& row, const Widths& widths) {
    std::string line;
    for (std::size_t column = 0; column < TEXT; ++column) {
        const std::size_t width = CodePoints(row[column]);
        const std::string padding(widths[column] > width ? widths[column] - width : 0, ' ');
        line += column == NUMBER ? padding + row[column] : row[column] + padding;
        line += "  ";
    }
    return line + row[TEXT] + '\n';
}

} // namespace

void WriteTable(ToolOutput& output, const std::vector<DisplayItem*>& items, const ImageBlock& images) {
    Widths widths{};
    VisitRows(items, images, [&widths](const Row& row) {
        for (std::size_t column = 0; column < TEXT; ++column)
            widths[column] = std::max(widths[column], std::min(CodePoints(row[column]), widestColumn));
    });
    VisitRows(items, images, [&](const Row& row) { output.Write(Line(row, widths)); });
}

} // namespace xttml
