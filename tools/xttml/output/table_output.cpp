#include "tools/xttml/output/table_output.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/styling_words.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace xttml {

namespace {

enum Column { NUMBER, BEGIN, END, BOX, COLOR, BACKGROUND, FONT, ALIGN, ID, REGION, STYLE, TEXT, COLUMNS };

using Row = std::array<std::string, COLUMNS>;
using Cells = std::array<std::string_view, COLUMNS>;
using Widths = std::array<std::size_t, COLUMNS>; // 0: the column is left out

constexpr std::size_t widestColumn = 32;
constexpr Cells HEADS = {"#",         "BEGIN", "END", "BOX",    "COLOUR", "BACKGROUND",
                         "FONT/LINE", "ALIGN", "ID",  "REGION", "STYLE",  "TEXT"};

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

/// Rows of text, packed: many thousands of them are held until their widths are known.
class Rows {
public:
    void Append(const Row& row) {
        for (const std::string& cell : row) {
            sizes_.push_back(cell.size());
            text_ += cell;
        }
    }

    template <class Visit>
    void ForEach(Visit&& visit) const {
        std::string_view rest = text_;
        for (std::size_t first = 0; first < sizes_.size(); first += COLUMNS) {
            Cells cells;
            for (std::size_t column = 0; column < COLUMNS; ++column) {
                cells[column] = rest.substr(0, sizes_[first + column]);
                rest.remove_prefix(cells[column].size());
            }
            visit(cells);
        }
    }

private:
    std::string text_;
    std::vector<std::size_t> sizes_; // of each cell
};

/// All rows below the head.
Rows RowsOf(const DisplaySequence& sequence, const ItemOrigins& origins) {
    Rows rows;
    std::size_t number = 0;
    for (const DisplayItem* const item : sequence.Items()) {
        const auto pieces = render::ReadPieces(item, render::WhiteSpace::COLLAPSED);
        Row row =
            ItemRow(*item, sequence.SpanOf(*item), origins.Of(*item), sequence.Images(), TextOf(pieces));
        row[NUMBER] = std::to_string(++number);
        rows.Append(row);
        const std::vector<Sentence*>& runs = Runs(*item);
        for (std::size_t j = 0; j < runs.size(); ++j)
            if (runs[j]->pStylingAttrib)
                rows.Append(RunRow(*runs[j], j + 1, pieces[j].text));
    }
    return rows;
}

void Widen(Widths& widths, const Cells& cells) {
    for (std::size_t column = 0; column < TEXT; ++column)
        widths[column] = std::max(widths[column], std::min(CodePoints(cells[column]), widestColumn));
}

/// The widths of the columns that hold something, their heads included.
Widths WidthsOf(const Rows& rows) {
    Widths widths{};
    rows.ForEach([&widths](const Cells& cells) { Widen(widths, cells); });
    Cells heads = HEADS;
    for (std::size_t column = 0; column < TEXT; ++column)
        if (widths[column] == 0)
            heads[column] = {};
    Widen(widths, heads);
    return widths;
}

/// Writes rows, all on the same string.
class LineWriter {
public:
    LineWriter(StandardOutput& output, const Widths& widths) : output_(output), widths_(widths) {}

    void Write(const Cells& cells) {
        line_.clear();
        for (std::size_t column = 0; column < TEXT; ++column)
            if (widths_[column] != 0)
                Append(cells[column], widths_[column], column == NUMBER);
        line_ += cells[TEXT];
        line_ += '\n';
        output_.Write(line_);
    }

private:
    void Append(std::string_view cell, std::size_t columnWidth, bool isRight) {
        const std::size_t width = CodePoints(cell);
        const std::size_t padding = columnWidth > width ? columnWidth - width : 0;
        line_.append(isRight ? padding : 0, ' ');
        line_ += cell;
        line_.append((isRight ? 0 : padding) + 2, ' ');
    }

    StandardOutput& output_;
    const Widths& widths_;
    std::string line_;
};

} // namespace

void WriteTable(StandardOutput& output, const DisplaySequence& sequence, const ItemOrigins& origins) {
    const Rows rows = RowsOf(sequence, origins);
    const Widths widths = WidthsOf(rows);
    LineWriter writer(output, widths);
    writer.Write(HEADS);
    rows.ForEach([&writer](const Cells& cells) { writer.Write(cells); });
}

} // namespace xttml
