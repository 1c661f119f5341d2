#include "render/text_layout.h"

#include <algorithm>

namespace xttml::render {

namespace {

/// Adds attributes to a list for a part of the text, in bytes.
class AttributeAdder {
public:
    AttributeAdder(PangoAttrList* attributes, std::size_t begin, std::size_t end)
        : attributes_(attributes), begin_(static_cast<guint>(begin)), end_(static_cast<guint>(end)) {}

    void Add(PangoAttribute* attribute) const { pango_attr_list_insert(attributes_, InRange(attribute)); }

private:
    PangoAttribute* InRange(PangoAttribute* attribute) const {
        attribute->start_index = begin_;
        attribute->end_index = end_;
        return attribute;
    }

    PangoAttrList* attributes_;
    guint begin_;
    guint end_;
};

int PangoSize(const Look& look) {
    return pango_units_from_double(look.fontSize);
}

Attributes AttributesOf(const Paragraph& paragraph) {
    Attributes attributes(pango_attr_list_new());
    std::size_t begin = 0;
    guint16 number = 0;
    for (const StyledPiece& piece : paragraph.pieces) {
        const AttributeAdder adder(attributes.get(), begin, piece.end);
        adder.Add(pango_attr_size_new_absolute(PangoSize(piece.look)));
        adder.Add(pango_attr_weight_new(piece.look.isBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL));
        adder.Add(pango_attr_style_new(piece.look.isItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL));
        adder.Add(pango_attr_insert_hyphens_new(FALSE));
        adder.Add(pango_attr_foreground_new(number++, 0, 0)); // unused: no run goes on where it changes
        begin = piece.end;
    }
    return attributes;
}

} // namespace

TextLayout LayOut(PangoContext* context, const Paragraph& paragraph, double width) {
    TextLayout layout(pango_layout_new(context));
    const FontDescription font(pango_font_description_copy(pango_context_get_font_description(context)));
    pango_font_description_set_absolute_size(font.get(), PangoSize(paragraph.look));
    pango_layout_set_font_description(layout.get(), font.get());
    pango_layout_set_wrap(layout.get(), PANGO_WRAP_WORD_CHAR);
    pango_layout_set_width(layout.get(), std::max(1, pango_units_from_double(width)));
    pango_layout_set_text(layout.get(), paragraph.text.data(), static_cast<int>(paragraph.text.size()));
    const Attributes attributes = AttributesOf(paragraph);
    pango_layout_set_attributes(layout.get(), attributes.get());
    return layout;
}

} // namespace xttml::render
