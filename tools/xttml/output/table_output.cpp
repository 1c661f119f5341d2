#include "tools/xttml/output/table_output.h"

#include "tools/xttml/output/item_text.h"
#include "tools/xttml/output/known_stylings.h"
#include "tools/xttml/output/styling_words.h"
#include "tools/xttml/text/text_encoding.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>
#include <vector>

namespace xttml {

namespace {

enum Column { NUMBER, BEGIN, END, BOX, COLOR, BACKGROUND, FONT, ALIGN, ID, REGION, STYLE, TEXT, COLUMNS };

using Widths = std::array<std::size_t, COLUMNS>; // 0: the column is left out

using Cells = std::array<std::string_view, COLUMNS>;

constexpr std::size_t widestColumn = 32;
constexpr char cellEnd = '\n'; // cells stand on one line
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

std::string Alignment(const StylingAttrib& styling) {
    return std::string(TextAlignWord(styling)) + " " + DisplayAlignWord(styling);
}

const char* HiddenMark(const StylingAttrib& styling) {
    return styling.iVisibility != 0 ? "[hidden] " : "";
}

/// The rows below the head, as one text of cells: many thousands are held until the widths of the columns are
/// known.
class Rows {
public:
    Rows(const DisplaySequence& sequence, const ItemOrigins& origins)
        : sequence_(sequence), origins_(origins) {
        cells_.reserve(sequence.Items().size() * usualSize);
        for (const DisplayItem* const item : sequence.Items())
            AddRows(*item);
    }

    /// The widths of the columns that hold something, their heads included.
    Widths ColumnWidths() const {
        Widths widths = widths_;
        for (std::size_t column = 0; column < TEXT; ++column)
            if (widths[column] != 0)
                widths[column] = std::max(widths[column], HEADS[column].size());
        return widths;
    }

    template <class Visit>
    void ForEach(Visit&& visit) const {
        for (std::string_view rest = cells_; !rest.empty();) {
            Cells cells;
            for (std::string_view& cell : cells) {
                cell = rest.substr(0, rest.find(cellEnd));
                rest.remove_prefix(cell.size() + 1);
            }
            visit(cells);
        }
    }

private:
    static constexpr std::size_t usualSize = 256; // of the rows of an item, bytes

    void AddRows(const DisplayItem& item) {
        const auto pieces = render::ReadPieces(&item, render::WhiteSpace::COLLAPSED);
        AddItem(item, pieces);
        const std::vector<Sentence*>& runs = Runs(item);
        for (std::size_t run = 0; run < runs.size(); ++run)
            if (runs[run]->pStylingAttrib)
                AddRun(run + 1, *runs[run]->pStylingAttrib, pieces[run].text);
    }

    void AddItem(const DisplayItem& item, const std::vector<render::TextPiece>& pieces) {
        const TimeSpan span = sequence_.SpanOf(item);
        const ItemOrigin origin = origins_.Of(item);
        Add(cells_, NUMBER, std::to_string(++number_));
        Add(cells_, BEGIN, FormatTime(span.begin));
        Add(cells_, END, FormatTime(span.end));
        cells_ += itemLooks_.Of(item.styling, [this](const StylingAttrib& styling) {
            return Look(BoxText(styling), styling, Alignment(styling));
        });
        Add(cells_, ID, origin.id.value_or(""));
        Add(cells_, REGION, origin.region.value_or(""));
        Add(cells_, STYLE, origin.style.value_or(""));
        AddContent(item, pieces);
    }

    void AddContent(const DisplayItem& item, const std::vector<render::TextPiece>& pieces) {
        cells_ += item.fgForcedDisplay ? "[forced] " : "";
        cells_ += HiddenMark(item.styling);
        if (x_ttml_item_get_kind(&item) == X_TTML_IMAGE_ITEM)
            cells_ += ImageLine(item, sequence_.Images());
        for (const render::TextPiece& piece : pieces)
            AppendOnOneLine(cells_, piece.text);
        cells_ += cellEnd;
    }

    void AddRun(std::size_t number, const StylingAttrib& styling, const std::string& text) {
        Add(cells_, NUMBER, "");
        Add(cells_, BEGIN, "run " + std::to_string(number));
        Add(cells_, END, "");
        cells_ += runLooks_.Of(styling, [this](const StylingAttrib& own) { return Look("", own, ""); });
        for (const Column column : {ID, REGION, STYLE})
            Add(cells_, column, "");
        cells_ += HiddenMark(styling);
        AppendOnOneLine(cells_, text);
        cells_ += cellEnd;
    }

    /// The cells from BOX to ALIGN.
    std::string Look(std::string_view box, const StylingAttrib& styling, std::string_view alignment) {
        std::string cells;
        Add(cells, BOX, box);
        Add(cells, COLOR, Utf8FromLatin1(styling.strColor));
        Add(cells, BACKGROUND, Utf8FromLatin1(styling.strBackgroundColor));
        Add(cells, FONT, Font(styling));
        Add(cells, ALIGN, alignment);
        return cells;
    }

    /// A cell of any column but TEXT.
    void Add(std::string& cells, Column column, std::string_view text) {
        const std::size_t begin = cells.size();
        AppendOnOneLine(cells, text);
        const std::size_t width = CodePoints(std::string_view(cells).substr(begin));
        widths_[column] = std::max(widths_[column], std::min(width, widestColumn));
        cells += cellEnd;
    }

    const DisplaySequence& sequence_;
    const ItemOrigins& origins_;
    KnownStylings<std::string> itemLooks_;
    KnownStylings<std::string> runLooks_;
    std::size_t number_ = 0; // of the item
    std::string cells_;
    Widths widths_{};
};

/// Writes rows, all on the same string.
class LineWriter {
public:
    LineWriter(StandardOutput& output, const Widths& widths) : output_(output), widths_(widths) {}

    void Write(const Cells& cells) {
        line_.clear();
        blanks_ = 0;
        for (std::size_t column = 0; column < TEXT; ++column)
            if (widths_[column] != 0)
                Append(cells[column], widths_[column], column == NUMBER);
        Append(cells[TEXT]);
        line_ += '\n';
        output_.Write(line_);
    }

private:
    void Append(std::string_view cell, std::size_t columnWidth, bool isRight) {
        const std::size_t padding = columnWidth - std::min(CodePoints(cell), columnWidth);
        blanks_ += isRight ? padding : 0;
        if (!cell.empty())
            Append(cell);
        blanks_ += (isRight ? 0 : padding) + 2;
    }

    void Append(std::string_view text) {
        line_.append(std::exchange(blanks_, 0), ' ');
        line_ += text;
    }

    StandardOutput& output_;
    const Widths& widths_;
    std::string line_;
    std::size_t blanks_ = 0; // that wait for something behind them
};

} // namespace

void WriteTable(StandardOutput& output, const DisplaySequence& sequence, const ItemOrigins& origins) {
    const Rows rows(sequence, origins);
    const Widths widths = rows.ColumnWidths();
    LineWriter writer(output, widths);
    writer.Write(HEADS);
    rows.ForEach([&writer](const Cells& cells) { writer.Write(cells); });
}

} // namespace xttml
