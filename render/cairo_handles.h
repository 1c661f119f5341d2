// Objects of Cairo and Pango that release themselves.
#ifndef XTTML_RENDER_CAIRO_HANDLES_H
#define XTTML_RENDER_CAIRO_HANDLES_H

#include <memory>
#include <pango/pangocairo.h>

namespace xttml::render {

/// Calls the function that releases an object.
template <auto release>
struct Releaser {
    template <class Object>
    void operator()(Object* object) const {
        release(object);
    }
};

template <class Object, auto release>
using Handle = std::unique_ptr<Object, Releaser<release>>;

using Surface = Handle<cairo_surface_t, cairo_surface_destroy>;
using DrawingContext = Handle<cairo_t, cairo_destroy>;
using FontOptions = Handle<cairo_font_options_t, cairo_font_options_destroy>;
using FontMap = Handle<PangoFontMap, g_object_unref>;
using TextContext = Handle<PangoContext, g_object_unref>;
using TextLayout = Handle<PangoLayout, g_object_unref>;
using FontDescription = Handle<PangoFontDescription, pango_font_description_free>;
using FontMetrics = Handle<PangoFontMetrics, pango_font_metrics_unref>;
using Attributes = Handle<PangoAttrList, pango_attr_list_unref>;

} // namespace xttml::render

#endif
