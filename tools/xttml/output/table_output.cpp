#include "tools/xttml/output/table_output.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/styling_words.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <array>
#include <functional>

namespace xttml {

namespace {

enum Column { NUMBER, BEGIN, END, BOX, COLOR, BACKGROUND, FONT, ALIGN, ID, REGION, STYLE, TEXT, COLUMNS };

using Row = std::array<std::string, COLUMNS>;
using Widths = std::array<std::size_t, COLUMNS>; // 0: the column is left out
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
    return {"#",         "BEGIN", "END", "BOX",    "COLOUR", "BACKGROUND",
            "FONT/LINE", "ALIGN", "ID",  "REGION", "STYLE",  "TEXT"};
}

std::string Cell(const std::optional<std::string>& text) {
    return text ? OnOneLine(*text) : std::string();
}

/// @param text of an item that is no image
Row ItemRow(const DisplayItem& item, const TimeSpan& span, const ItemOrigin& origin, const ImageBlock& images,
            const std::string& text) {
    Row row;
    row[BEGIN] = FormatTime(span.begin);
    row[END] = FormatTime(span.end);
    row[BOX] = BoxText(item.styling);
    row[ALIGN] = std::string(TextAlignWord(item.styling)) + " " + DisplayAlignWord(item.styling);
    row[ID] = Cell(origin.id);
    row[REGION] = Cell(origin.region);
    row[STYLE] = Cell(origin.style);
    if (item.fgForcedDisplay)
        row[TEXT] += "[forced] ";
    SetStyling(row, item.styling);
    const bool isImage = x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM;
    row[TEXT] += isImage ? ImageLine(item, images) : OnOneLine(text);
    return row;
}

Row RunRow(const Sentence& run, std::size_t number, const std::string& text) {
    Row row;
    row[BEGIN] = "run " + std::to_string(number);
    SetStyling(row, *run.pStylingAttrib);
    row[TEXT] += OnOneLine(text);
    return row;
}

/// All rows below the head.
/// @param hasText whether the texts are wanted, too
void VisitRows(const DisplaySequence& sequence, const ItemOrigins& origins, bool hasText,
               const RowVisitor& visit) {
    std::size_t number = 0;
    for (const DisplayItem* const item : sequence.Items()) {
        const auto pieces = hasText ? render::ReadPieces(item, render::WhiteSpace::COLLAPSED)
                                    : std::vector<render::TextPiece>(Runs(*item).size());
        Row row =
            ItemRow(*item, sequence.SpanOf(*item), origins.Of(*item), sequence.Images(), TextOf(pieces));
        row[NUMBER] = std::to_string(++number);
        visit(row);
        const std::vector<Sentence*>& runs = Runs(*item);
        for (std::size_t j = 0; j < runs.size(); ++j)
            if (runs[j]->pStylingAttrib)
                visit(RunRow(*runs[j], j + 1, pieces[j].text));
    }
}

void Widen(Widths& widths, const Row& row) {
    for (std::size_t column = 0; column < TEXT; ++column)
        widths[column] = std::max(widths[column], std::min(CodePoints(row[column]), widestColumn));
}

/// The widths of the columns that hold something, their heads included.
Widths WidthsOf(const DisplaySequence& sequence, const ItemOrigins& origins) {
    Widths widths{};
    VisitRows(sequence, origins, false, [&widths](const Row& row) { Widen(widths, row); });
    Row heads = HeadRow();
    for (std::size_t column = 0; column < TEXT; ++column)
        if (widths[column] == 0)
            heads[column].clear();
    Widen(widths, heads);
    return widths;
}

std::string Line(const Row& row, const Widths& widths) {
    std::string line;
    for (std::size_t column = 0; column < TEXT; ++column) {
        if (widths[column] == 0)
            continue;
        const std::size_t width = CodePoints(row[column]);
        const std::size_t padding = widths[column] > width ? widths[column] - width : 0;
        const bool isRight = column == NUMBER;
        line.append(isRight ? padding : 0, ' ').append(row[column]).append(isRight ? 0 : padding, ' ');
        line += "  ";
    }
    return line.append(row[TEXT]).append(1, '\n');
}

} // namespace

void WriteTable(StandardOutput& output, const DisplaySequence& sequence, const ItemOrigins& origins) {
    const Widths widths = WidthsOf(sequence, origins);
    output.Write(Line(HeadRow(), widths));
    VisitRows(sequence, origins, true, [&](const Row& row) { output.Write(Line(row, widths)); });
}

} // namespace xttml
